// Password hashes: argon2id strings that verify only their own password, salted, and a
// hash of other limits is recognised as worth redoing.

#include <gtest/gtest.h>
#include <sodium.h>

#include <array>

#include "app/PasswordHasher.h"

namespace sandogh {
namespace {

TEST(PasswordHasherTest, AHashIsArgon2idAndVerifiesOnlyItsPassword) {
    const QString hash = PasswordHasher::hash(QStringLiteral("رمز-۱۲۳4"));
    ASSERT_FALSE(hash.isEmpty());
    EXPECT_TRUE(hash.startsWith(QLatin1String("$argon2id$"))) << hash.toStdString();
    EXPECT_TRUE(PasswordHasher::isHash(hash));
    EXPECT_TRUE(PasswordHasher::verify(hash, QStringLiteral("رمز-۱۲۳4")));
    EXPECT_FALSE(PasswordHasher::verify(hash, QStringLiteral("رمز-۱۲۳")));
    EXPECT_FALSE(PasswordHasher::verify(hash, QString()));
    EXPECT_FALSE(PasswordHasher::needsRehash(hash));
    // A column padded with blanks still verifies.
    EXPECT_TRUE(PasswordHasher::verify(hash + QStringLiteral("   "), QStringLiteral("رمز-۱۲۳4")));
}

TEST(PasswordHasherTest, TextsThatAreNotHashesNeverVerify) {
    const struct {
        const char* stored;
        const char* password;
    } cases[] = {
        {"1234", "1234"},  // a password kept as written is not a hash
        {"", ""},
        {"$argon2id$garbage", "garbage"},
        {"$argon2id$v=19$m=65536,t=2,p=1$c29tZXNhbHQ$", ""},
    };
    for (const auto& c : cases) {
        EXPECT_FALSE(
            PasswordHasher::verify(QString::fromLatin1(c.stored), QString::fromLatin1(c.password)))
            << c.stored;
    }
    EXPECT_FALSE(PasswordHasher::isHash(QStringLiteral("argon2id")));
}

TEST(PasswordHasherTest, AHashOfWeakerLimitsIsToBeRedone) {
    ASSERT_GE(sodium_init(), 0);
    std::array<char, crypto_pwhash_STRBYTES> weak{};
    ASSERT_EQ(crypto_pwhash_str_alg(weak.data(), "pass", 4, crypto_pwhash_OPSLIMIT_MIN,
                                    crypto_pwhash_MEMLIMIT_MIN, crypto_pwhash_ALG_ARGON2ID13),
              0);
    const QString stored = QString::fromLatin1(weak.data());
    EXPECT_TRUE(PasswordHasher::verify(stored, QStringLiteral("pass")));
    EXPECT_TRUE(PasswordHasher::needsRehash(stored));
}

}  // namespace
}  // namespace sandogh
