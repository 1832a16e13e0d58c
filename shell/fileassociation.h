// The desktop's association of .mox and .moy files with this program: a desktop entry whose
// command runs this very executable with the file, and the two file types "MOX Model" and "MOY
// Model" with the program as their default application, kept in the user's data folder.
#pragma once

#include <QString>

// Writes or refreshes the entry, the types and the icon, and lets the desktop's databases take
// them in when anything changed. Failures are silent: the program starts as usual.
void WriteFileAssociation();
// The Exec line's command for `program`: quoted as desktop entries require when the path holds
// anything but plain characters, followed by the file argument.
QString DesktopCommand(const QString& program);
