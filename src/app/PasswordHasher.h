#pragma once

#include <QString>

namespace sandogh {

// Passwords of the Users table, kept as argon2id hashes in libsodium's string form
// ("$argon2id$v=19$m=...,t=...,p=...$salt$hash"), with the interactive limits: a login
// costs a fraction of a second and 64 MiB, which a cash desk can afford and a guesser
// cannot. Rows written by older programs may still hold the password itself; isHash()
// tells the two apart.
class PasswordHasher {
public:
    // What every stored hash starts with, whatever its variant.
    static constexpr const char* kHashPrefix = "$argon2";

    // The hash of password, or an empty text when libsodium refused (out of memory).
    static QString hash(const QString& password);

    // True when stored is a hash of password. A text that is not a hash never verifies.
    static bool verify(const QString& stored, const QString& password);

    // True when stored is a hash (as against a password kept as written).
    static bool isHash(const QString& stored);

    // True when stored is a hash made with other limits than today's, so that it is
    // worth hashing the password again at the next successful login.
    static bool needsRehash(const QString& stored);

private:
    // sodium_init() once per process; false when libsodium cannot be used.
    static bool ready();
};

}  // namespace sandogh
