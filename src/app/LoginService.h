#pragma once

#include <QString>

#include "app/UserAccount.h"

namespace sandogh {

class Database;

// Who may log in, checked against the Users table.
//
// Login names are compared trimmed and without regard to case, as
// "ltrim(rtrim(UserName))" is. Passwords are kept as argon2id hashes (PasswordHasher).
// A row written by an older program may still hold the password itself: such a password
// is accepted once when it matches exactly, and the row is given its hash at once, so
// that the plain text does not outlive the first login.
class LoginService {
public:
    enum class Outcome {
        Accepted,
        UnknownUser,    // no row with that login name
        WrongPassword,  // the password matches no row of that name
        Inactive,       // the password is right but the user is switched off (Active not 1)
        OtherStation,   // the password is right but the user may not work at this cash desk
        Failed,         // the database could not be read; the message has been shown
    };

    struct Result {
        Outcome outcome = Outcome::Failed;
        UserAccount user;               // the user, when accepted
        bool passwordRehashed = false;  // the stored password was replaced by a new hash
        bool accepted() const { return outcome == Outcome::Accepted; }
    };

    // What ensureAdministrator() did.
    struct AdministratorCheck {
        bool ok = false;       // false: the database could not be read or written
        bool created = false;  // a new administrator was added
        QString userName;      // of the new administrator
        QString password;      // its initial password, to be told to the person once
    };

    // The first administrator of an empty shop, and the password it starts with.
    static constexpr const char* kInitialAdministratorName = "admin";
    static constexpr const char* kInitialAdministratorPassword = "admin";
    static const QString& initialAdministratorDisplayName();
    // What the person is told after a first administrator was made.
    static QString administratorCreatedMessage(const AdministratorCheck& check);

    explicit LoginService(Database& database) : m_database(database) {}

    // Makes sure the shop has an active administrator: when Users holds none, adds one with
    // the initial name (followed by a number when that name is taken by another row) and
    // the initial password, hashed.
    AdministratorCheck ensureAdministrator();

    // stationId: this machine's cash desk; a user limited to other desks is refused (0: no
    // desk is checked).
    Result login(const QString& userName, const QString& password, int stationId = 0);

private:
    Database& m_database;
};

}  // namespace sandogh
