#pragma once

#include <QFont>

class QDialogButtonBox;
class QWidget;

namespace sandogh {

// What the small dialogs of the sale screen share: large entry digits readable at arm's
// length, a bold title line, and OK/Cancel buttons with Persian captions.
class SaleDialogLook {
public:
    static constexpr int kEntryWidth = 260;

    static QFont entryFont(QFont base);
    static QFont titleFont(QFont base);
    // OK (the default, taken by Enter) and Cancel (Escape).
    static QDialogButtonBox* okCancel(QWidget* parent);
};

}  // namespace sandogh
