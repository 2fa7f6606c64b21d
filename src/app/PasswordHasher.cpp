#include "app/PasswordHasher.h"

#include <sodium.h>

#include <QByteArray>
#include <array>

namespace sandogh {

bool PasswordHasher::ready() {
    // sodium_init() is itself safe to call more than once and from several threads;
    // the static only spares the repeated call.
    static const bool initialised = sodium_init() >= 0;
    return initialised;
}

QString PasswordHasher::hash(const QString& password) {
    if (!ready()) {
        return {};
    }
    const QByteArray utf8 = password.toUtf8();
    std::array<char, crypto_pwhash_STRBYTES> out{};
    if (crypto_pwhash_str_alg(
            out.data(), utf8.constData(), static_cast<unsigned long long>(utf8.size()),
            crypto_pwhash_OPSLIMIT_INTERACTIVE, crypto_pwhash_MEMLIMIT_INTERACTIVE,
            crypto_pwhash_ALG_ARGON2ID13) != 0) {
        return {};
    }
    return QString::fromLatin1(out.data());
}

bool PasswordHasher::isHash(const QString& stored) {
    return stored.startsWith(QLatin1String(kHashPrefix));
}

bool PasswordHasher::verify(const QString& stored, const QString& password) {
    if (!isHash(stored) || !ready()) {
        return false;
    }
    // The stored text is read back as written; a column padded with blanks (fixed-width
    // text on some servers) would otherwise never verify.
    const QByteArray hashText = stored.trimmed().toLatin1();
    if (hashText.size() >= static_cast<qsizetype>(crypto_pwhash_STRBYTES)) {
        return false;
    }
    const QByteArray utf8 = password.toUtf8();
    return crypto_pwhash_str_verify(hashText.constData(), utf8.constData(),
                                    static_cast<unsigned long long>(utf8.size())) == 0;
}

bool PasswordHasher::needsRehash(const QString& stored) {
    if (!isHash(stored) || !ready()) {
        return false;
    }
    const QByteArray hashText = stored.trimmed().toLatin1();
    if (hashText.size() >= static_cast<qsizetype>(crypto_pwhash_STRBYTES)) {
        return true;
    }
    // 1 for other limits, -1 for a hash of another algorithm (argon2i): both are redone.
    return crypto_pwhash_str_needs_rehash(hashText.constData(), crypto_pwhash_OPSLIMIT_INTERACTIVE,
                                          crypto_pwhash_MEMLIMIT_INTERACTIVE) != 0;
}

}  // namespace sandogh
