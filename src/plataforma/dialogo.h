#pragma once

#include <string>

namespace eeprog {

// The open and save dialog. One instance serves both, so the file name and the chosen
// filter carry over from one to the other. The settings are read when the dialog is
// shown; FileName, FileTitle and FilterIndex are written when the user accepts.
class Dialogo {
public:
    virtual ~Dialogo() = default;

    // Entries "description|pattern|description|pattern...".
    std::string Filter;
    // The filter entry shown first, counted from 1; the user's choice after the dialog.
    int FilterIndex = 1;
    // Added to a name typed without an extension.
    std::string DefaultExt;
    // preguntarreemplazo: ask before a save replaces an existing file.
    int Flags = 0;
    // The full path chosen; it stays as it was when the dialog is cancelled.
    std::string FileName;
    // The name chosen, without its directory.
    std::string FileTitle;

    // Both return when the dialog is closed: true when the user chose a file, false when
    // the dialog was cancelled.
    virtual bool ShowOpen() = 0;
    virtual bool ShowSave() = 0;
};

inline constexpr int preguntarreemplazo = 2;

} // namespace eeprog
