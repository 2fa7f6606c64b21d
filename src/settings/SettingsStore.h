#pragma once

#include <QString>

namespace sandogh {

// Per-machine settings: texts kept by application, section and key. Sections and keys
// match without regard to case. A missing key reads as empty text.
class SettingsStore {
public:
    virtual ~SettingsStore() = default;

    // The application name the texts are kept under ("Retail" for the program).
    virtual QString application() const = 0;

    // The kept text, or empty text when there is none or the names are not valid.
    virtual QString read(const QString& section, const QString& key) const = 0;

    // Keeps text under section and key, replacing what was kept under any spelling of
    // the same names. False when the names are not valid or the text could not be kept.
    virtual bool write(const QString& section, const QString& key, const QString& text) = 0;

    // Forgets the text under every spelling of section and key; false when it cannot.
    virtual bool remove(const QString& section, const QString& key) = 0;

    // Many writes at once (the settings screen saving every key): between beginBatch and
    // the matching endBatch, writes and removals are only noted and reach the platform store
    // together when the outermost batch ends. Their results then say only whether the names
    // were valid; endBatch says whether everything was kept. Batches nest.
    virtual void beginBatch() {}
    virtual bool endBatch() { return true; }

    // Section and key names must be non-empty and free of "/" and "\", which the platform
    // stores take for separators.
    static bool validName(const QString& name) {
        return !name.isEmpty() && !name.contains(u'/') && !name.contains(u'\\');
    }
};

}  // namespace sandogh
