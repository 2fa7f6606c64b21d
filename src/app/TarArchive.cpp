#include "app/TarArchive.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <cstring>

namespace sandogh {

namespace {

constexpr int kBlock = 512;
constexpr qint64 kChunk = 1 << 20;

bool fail(QString* error, const QString& text) {
    if (error != nullptr) {
        *error = text;
    }
    return false;
}

void putOctal(char* field, int width, qint64 value) {
    const QByteArray digits = QByteArray::number(value, 8).rightJustified(width - 1, '0');
    std::memcpy(field, digits.constData(), static_cast<size_t>(width - 1));
    field[width - 1] = '\0';
}

QByteArray header(const QString& name, qint64 size) {
    QByteArray block(kBlock, '\0');
    char* h = block.data();
    const QByteArray utf8 = name.toUtf8().left(99);
    std::memcpy(h, utf8.constData(), static_cast<size_t>(utf8.size()));
    putOctal(h + 100, 8, 0644);
    putOctal(h + 108, 8, 0);
    putOctal(h + 116, 8, 0);
    putOctal(h + 124, 12, size);
    putOctal(h + 136, 12, QDateTime::currentSecsSinceEpoch());
    h[156] = '0';  // a regular file
    std::memcpy(h + 257, "ustar", 6);
    std::memcpy(h + 263, "00", 2);
    std::memset(h + 148, ' ', 8);  // the checksum counts its own field as blanks
    unsigned sum = 0;
    for (int i = 0; i < kBlock; ++i) {
        sum += static_cast<unsigned char>(h[i]);
    }
    putOctal(h + 148, 7, sum);
    h[155] = ' ';
    return block;
}

bool copy(QIODevice& from, QIODevice& to, qint64 size) {
    while (size > 0) {
        const QByteArray chunk = from.read(std::min(size, kChunk));
        if (chunk.isEmpty() || to.write(chunk) != chunk.size()) {
            return false;
        }
        size -= chunk.size();
    }
    return true;
}

}  // namespace

bool TarArchive::write(const QString& archive, const QList<Member>& members, QString* error) {
    QFile out(archive);
    if (!out.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        return fail(error, QStringLiteral("cannot write %1: %2").arg(archive, out.errorString()));
    }
    for (const Member& member : members) {
        QFile in(member.file);
        if (!in.open(QIODevice::ReadOnly)) {
            return fail(error, QStringLiteral("cannot read %1").arg(member.file));
        }
        const qint64 size = in.size();
        const qint64 padding = (kBlock - size % kBlock) % kBlock;
        if (out.write(header(member.name, size)) != kBlock || !copy(in, out, size) ||
            out.write(QByteArray(padding, '\0')) != padding) {
            return fail(error, QStringLiteral("cannot write %1").arg(archive));
        }
    }
    // Two empty blocks end the archive.
    if (out.write(QByteArray(2 * kBlock, '\0')) != 2 * kBlock || !out.flush()) {
        return fail(error, QStringLiteral("cannot write %1").arg(archive));
    }
    return true;
}

bool TarArchive::extract(const QString& archive, const QString& folder, QStringList* names,
                         QString* error) {
    QFile in(archive);
    if (!in.open(QIODevice::ReadOnly)) {
        return fail(error, QStringLiteral("cannot read %1").arg(archive));
    }
    const QString broken = QStringLiteral("%1 is not a whole backup archive").arg(archive);
    for (;;) {
        const QByteArray block = in.read(kBlock);
        if (block.size() != kBlock) {
            return fail(error, broken);
        }
        if (block.count('\0') == kBlock) {
            return true;
        }
        const char* h = block.constData();
        unsigned sum = 0;
        for (int i = 0; i < kBlock; ++i) {
            sum += (i >= 148 && i < 156) ? ' ' : static_cast<unsigned char>(h[i]);
        }
        bool sizeOk = false;
        bool sumOk = false;
        const qint64 size = QByteArray(h + 124, 11).toLongLong(&sizeOk, 8);
        const unsigned stored = QByteArray(h + 148, 6).toUInt(&sumOk, 8);
        const QString name = QString::fromUtf8(QByteArray(h, 100).constData());
        if (!sizeOk || !sumOk || stored != sum || size < 0 || h[156] != '0' || name.isEmpty() ||
            name.contains(QLatin1Char('/')) || name.contains(QLatin1Char('\\')) ||
            name.startsWith(QLatin1Char('.'))) {
            return fail(error, broken);
        }
        QFile out(QDir(folder).filePath(name));
        if (!out.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
            return fail(error, QStringLiteral("cannot write %1").arg(out.fileName()));
        }
        if (!copy(in, out, size)) {
            return fail(error, broken);
        }
        in.skip((kBlock - size % kBlock) % kBlock);
        if (names != nullptr) {
            *names << name;
        }
    }
}

}  // namespace sandogh
