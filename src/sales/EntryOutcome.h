#pragma once

#include <QString>

namespace sandogh {

// What the text of the barcode box turned out to be.
enum class EntryKind {
    Blank,              // nothing to resolve (blank after trimming)
    CardNumber,         // 10 characters with the card reader on: handed to the card look-up
    MizanTicket,        // 8 characters with the scale prefix: a MizanNet weighed ticket
    OnlineSalesTicket,  // 18 characters: an OnlineSales weighed ticket
    Document,           // "//" and a number: a saved document loaded
    Goods,              // a barcode or a Spec_Code
    Quantity,           // a quantity for the last line
};

// The result of SaleSession::enterText(): the kind of text, whether lines changed,
// whether the entry was refused with a message (locked goods, the quantity-first
// message, the sales type not chosen), and the box's text and whether to clear it.
struct EntryOutcome {
    EntryKind kind = EntryKind::Blank;
    bool linesChanged = false;
    bool refused = false;
    // Nothing matched (no active goods, no ticket lines, no document): nothing added.
    bool notFound = false;
    // The box's text with its apostrophes removed (the screen rewrites the box with it).
    QString boxText;
    // Whether the box is cleared: after every rule, but a refused card keeps its number.
    bool clearBox = true;
};

}  // namespace sandogh
