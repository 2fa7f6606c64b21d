#include "DisplayGreeting.h"

namespace sandogh {

QString DisplayGreeting::read(Database& database) {
    return ShopDetailsRepository(database).greeting();
}

}  // namespace sandogh
