#pragma once

#include "settings/SettingForm.h"

namespace sandogh {

// Where one setting is kept and how it reads when nothing is kept.
// The texts are plain ASCII so that keys can be compile-time constants.
struct SettingKey {
    const char* application;  // "Retail" for all but the branch transfer
    const char* section;
    const char* key;
    SettingForm form;
    const char* defaultText;  // taken when the kept text is empty or blank
};

}  // namespace sandogh
