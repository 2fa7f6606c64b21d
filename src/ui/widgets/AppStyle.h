#pragma once

#include <QFont>
#include <QString>

class QApplication;

namespace sandogh {

// The look of the whole program: right to left, a font that joins Persian letters well,
// and a quiet light palette with clear focus marks for a busy shop counter.
class AppStyle {
public:
    // The font installed on Linux for Persian text.
    static constexpr const char* kPersianFamily = "Noto Sans Arabic";

    static void apply(QApplication& app);

    // The application font: Noto Sans Arabic where it is installed (with Latin fallbacks),
    // the platform's own font on Windows, in a size readable at arm's length.
    static QFont font();
    static QString styleSheet();
};

}  // namespace sandogh
