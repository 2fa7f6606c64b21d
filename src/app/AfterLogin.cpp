#include "app/AfterLogin.h"

#include "app/AppContext.h"
#include "app/CompanionPrograms.h"
#include "app/ShopInfo.h"
#include "app/UserAccount.h"

namespace sandogh {

void AfterLogin::run(const UserAccount& user) {
    m_context.setUser(user);
    MachineSettings& settings = m_context.machineSettings();
    settings.setUserInfo(user.id, user.userName, user.name);
    m_context.setUserProfile(settings.userProfile());

    Station station;
    station.id = settings.stationId();
    if (m_context.hasDatabase()) {
        station.name = ShopInfo(m_context.database()).stationName(station.id);
    }
    m_context.setStation(station);

    CompanionPrograms(settings, m_context.launcher(), m_context.programFolder())
        .startLoginPrograms();
}

}  // namespace sandogh
