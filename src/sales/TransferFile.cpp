#include "sales/TransferFile.h"

#include <QCryptographicHash>
#include <QLocale>
#include <QStringDecoder>
#include <cmath>
#include <limits>

namespace sandogh {

namespace {

const QByteArray kHeaderTag = QByteArrayLiteral("H");
const QByteArray kLineTag = QByteArrayLiteral("L");
const QByteArray kTrailerTag = QByteArrayLiteral("END");
constexpr qsizetype kHashHexLength = 64;

QByteArray escaped(const QString& text) {
    QByteArray out;
    for (const char c : text.toUtf8()) {
        switch (c) {
            case '%':
                out += "%25";
                break;
            case ',':
                out += "%2C";
                break;
            case '\r':
                out += "%0D";
                break;
            case '\n':
                out += "%0A";
                break;
            default:
                out += c;
        }
    }
    return out;
}

QByteArray number(double value) {
    return QByteArray::number(value, 'g', QLocale::FloatingPointShortest);
}

QByteArray hashOf(const QByteArray& bytes) {
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex();
}

// Reads the records of a file whose trailer has been checked; every failure names its
// reason and the line it met it on.
class Reader {
public:
    explicit Reader(QList<QByteArray> records) : m_records(std::move(records)) {}

    std::optional<TransferBatch> batch(QString& problem) {
        TransferBatch b;
        const QList<QByteArray> head = fields(5);
        bool ok = !head.isEmpty() && head.at(0) == TransferFile::kMagic;
        if (ok && head.at(1) != QByteArray::number(TransferFile::kVersion)) {
            return fail(problem, QStringLiteral("unknown layout version"));
        }
        qint64 invoices = 0;
        ok = ok && text(head.at(2), TransferFile::kMaxShopId, b.shopId) && !b.shopId.isEmpty() &&
             whole(head.at(3), b.branchId) && whole(head.at(4), invoices) && invoices > 0;
        if (!ok) {
            return fail(problem, QStringLiteral("bad file header"));
        }
        for (qint64 i = 0; i < invoices; ++i) {
            TransferInvoice invoice;
            if (!readInvoice(invoice)) {
                return fail(problem, QStringLiteral("bad invoice record"));
            }
            for (const TransferInvoice& earlier : b.invoices) {
                if (earlier.code == invoice.code) {
                    return fail(problem, QStringLiteral("an invoice given twice"));
                }
            }
            b.invoices << invoice;
        }
        if (m_next != m_records.size()) {
            return fail(problem, QStringLiteral("records after the last invoice"));
        }
        return b;
    }

private:
    std::optional<TransferBatch> fail(QString& problem, const QString& reason) const {
        problem = QStringLiteral("%1 (line %2)").arg(reason).arg(m_next);
        return std::nullopt;
    }

    // The fields of the next record when it has exactly count of them; empty otherwise.
    QList<QByteArray> fields(qsizetype count) {
        if (m_next >= m_records.size()) {
            return {};
        }
        const QList<QByteArray> f = m_records.at(m_next++).split(',');
        return f.size() == count ? f : QList<QByteArray>{};
    }

    bool readInvoice(TransferInvoice& invoice) {
        const QList<QByteArray> f = fields(8);
        qint64 lines = 0;
        if (f.isEmpty() || f.at(0) != kHeaderTag || !whole(f.at(1), invoice.code) ||
            !text(f.at(2), TransferFile::kMaxDocNo, invoice.docNo) ||
            !text(f.at(3), TransferFile::kMaxDate, invoice.docDate) ||
            !real(f.at(4), invoice.docSum) || !real(f.at(5), invoice.discount) ||
            !whole(f.at(6), lines) || lines < 0 || lines > m_records.size() ||
            !text(f.at(7), TransferFile::kMaxNote, invoice.note)) {
            return false;
        }
        for (qint64 i = 0; i < lines; ++i) {
            const QList<QByteArray> l = fields(5);
            TransferLine line;
            if (l.isEmpty() || l.at(0) != kLineTag ||
                !text(l.at(1), TransferFile::kMaxBarcode, line.barcode) ||
                line.barcode.trimmed().isEmpty() || !real(l.at(2), line.qty) || line.qty <= 0 ||
                !real(l.at(3), line.fee) || !real(l.at(4), line.price)) {
                // A quantity of nothing or less would take stock away from the branch.
                return false;
            }
            invoice.lines << line;
        }
        return true;
    }

    template <typename Int>
    static bool whole(const QByteArray& field, Int& value) {
        bool ok = false;
        const qint64 v = field.toLongLong(&ok);
        // Only the canonical spelling: no sign on zero, no leading zeros or blanks.
        if (!ok || QByteArray::number(v) != field || v < 0 ||
            v > static_cast<qint64>(std::numeric_limits<Int>::max())) {
            return false;
        }
        value = static_cast<Int>(v);
        return true;
    }

    static bool real(const QByteArray& field, double& value) {
        bool ok = false;
        const double v = QLocale::c().toDouble(QString::fromLatin1(field), &ok);
        if (!ok || !std::isfinite(v) || field.isEmpty() || number(v) != field) {
            return false;
        }
        value = v;
        return true;
    }

    static bool text(const QByteArray& field, int maxLength, QString& value) {
        QByteArray raw;
        for (qsizetype i = 0; i < field.size(); ++i) {
            const char c = field.at(i);
            if (c == '\r' || c == '\n') {
                return false;
            }
            if (c != '%') {
                raw += c;
                continue;
            }
            const QByteArray code = field.mid(i + 1, 2);
            if (code == "25") {
                raw += '%';
            } else if (code == "2C") {
                raw += ',';
            } else if (code == "0D") {
                raw += '\r';
            } else if (code == "0A") {
                raw += '\n';
            } else {
                return false;
            }
            i += 2;
        }
        // A byte order mark inside a field is text like any other, not skipped.
        QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom);
        const QString decoded = decoder(raw);
        if (decoder.hasError() || decoded.size() > maxLength) {
            return false;
        }
        value = decoded;
        return true;
    }

    QList<QByteArray> m_records;
    qsizetype m_next = 0;
};

}  // namespace

QByteArray TransferFile::write(const TransferBatch& batch) {
    QByteArray body;
    qsizetype records = 0;
    const auto record = [&](std::initializer_list<QByteArray> fields) {
        QByteArray line;
        for (const QByteArray& f : fields) {
            line += (line.isEmpty() ? QByteArray() : QByteArrayLiteral(",")) + f;
        }
        body += line + '\n';
    };
    record({kMagic, QByteArray::number(kVersion), escaped(batch.shopId),
            QByteArray::number(batch.branchId), QByteArray::number(batch.invoices.size())});
    for (const TransferInvoice& invoice : batch.invoices) {
        record({kHeaderTag, QByteArray::number(invoice.code), escaped(invoice.docNo),
                escaped(invoice.docDate), number(invoice.docSum), number(invoice.discount),
                QByteArray::number(invoice.lines.size()), escaped(invoice.note)});
        ++records;
        for (const TransferLine& line : invoice.lines) {
            record({kLineTag, escaped(line.barcode), number(line.qty), number(line.fee),
                    number(line.price)});
            ++records;
        }
    }
    return body + kTrailerTag + ',' + QByteArray::number(records) + ',' + hashOf(body) + '\n';
}

std::optional<TransferBatch> TransferFile::parse(const QByteArray& bytes, QString* problem) {
    QString reason;
    const auto refuse = [&](const QString& why) -> std::optional<TransferBatch> {
        if (problem != nullptr) {
            *problem = why;
        }
        return std::nullopt;
    };
    // The shortest file has a trailer line and something before it.
    if (bytes.size() < 2 || !bytes.endsWith('\n')) {
        return refuse(QStringLiteral("the file is empty or cut short"));
    }
    const qsizetype trailerStart = bytes.lastIndexOf('\n', bytes.size() - 2) + 1;
    const QByteArray body = bytes.left(trailerStart);
    const QList<QByteArray> trailer = bytes.mid(trailerStart).chopped(1).split(',');
    if (trailer.size() != 3 || trailer.at(0) != kTrailerTag ||
        trailer.at(2).size() != kHashHexLength) {
        return refuse(QStringLiteral("the file is cut short (no trailer)"));
    }
    if (trailer.at(2) != hashOf(body)) {
        return refuse(QStringLiteral("the file was changed (checksum mismatch)"));
    }
    QList<QByteArray> records = body.split('\n');
    records.removeLast();  // after the body's last "\n"
    if (trailer.at(1) != QByteArray::number(records.size() - 1)) {
        return refuse(QStringLiteral("the record count does not match"));
    }
    Reader reader(records);
    std::optional<TransferBatch> batch = reader.batch(reason);
    if (!batch) {
        return refuse(reason);
    }
    return batch;
}

}  // namespace sandogh
