#pragma once

namespace sandogh {

// How the text of a setting is read.
enum class SettingForm {
    Flag,    // on when the numeric value of the text is greater than 0
    Number,  // the numeric value of the text: a count, a port number, an amount
    Text,    // the text itself
};

}  // namespace sandogh
