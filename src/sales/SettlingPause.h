#pragma once

#include <QString>
#include <functional>

namespace sandogh {

// The pause before the barcode box is read: keys a slow scanner is still delivering are
// let in by draining pending events in short passes, until a pass finds nothing to do or
// leaves the box's text as it was, or the cap is reached. When nothing is pending it
// returns at once; the screen never freezes.
class SettlingPause {
public:
    static constexpr int kDefaultCapMs = 60;

    struct Result {
        int passes = 0;       // event-processing passes run
        bool capped = false;  // stopped by the cap while the text was still changing
    };

    // text reads the box; capMs bounds the whole pause.
    static Result settle(const std::function<QString()>& text, int capMs = kDefaultCapMs);
};

}  // namespace sandogh
