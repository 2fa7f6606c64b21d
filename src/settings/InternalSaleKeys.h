#pragma once

#include "settings/SettingKeys.h"

// The internal sale screen's setting beside its price mode and branch kind (SettingKeys.h).
namespace sandogh::settingkeys {

// With the last internal price: only internal documents dated up to this Jalali date
// count; blank for all of them.
inline constexpr SettingKey InternalPriceDateLimit = text("SaleInter", "PriceDateLimit");

}  // namespace sandogh::settingkeys
