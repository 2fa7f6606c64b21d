#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

#include "sales/TransferBatch.h"

namespace sandogh {

// The record layout of RptFactors.txt, the file that carries internal sale invoices from
// the centre to a branch. UTF-8, one record a line, each line ended by "\n", fields
// separated by ",":
//
//   SANDOGH-RPTFACTORS,1,<shop>,<branch ID>,<invoices>
//   H,<code>,<number>,<date>,<total>,<discount>,<lines>,<note>     one per invoice,
//   L,<barcode>,<quantity>,<unit price>,<line amount>               followed by its lines
//   END,<records>,<SHA-256>
//
// Text fields escape "%", ",", CR and LF as %25, %2C, %0D and %0A; numbers are written in
// the C locale as the shortest text that reads back as the same value. The trailer counts
// the H and L records and holds the lower-case hex SHA-256 of every byte before it, so a
// file cut short or with any byte changed is refused whole.
class TransferFile {
public:
    static constexpr const char* kMagic = "SANDOGH-RPTFACTORS";
    static constexpr int kVersion = 1;
    // Limits that match the columns the receiving shop writes the fields into.
    static constexpr int kMaxShopId = 100;
    static constexpr int kMaxBarcode = 50;
    static constexpr int kMaxDocNo = 20;
    static constexpr int kMaxDate = 10;
    static constexpr int kMaxNote = 1000;

    static QByteArray write(const TransferBatch& batch);

    // The batch, or nothing with the reason (English, for logs and the command line) in
    // problem when the bytes are not a whole, unchanged file of this layout.
    static std::optional<TransferBatch> parse(const QByteArray& bytes, QString* problem = nullptr);
};

}  // namespace sandogh
