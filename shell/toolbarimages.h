// ImgLst_Toolbar: the toolbar's images and the view's pointers, found by key ("Open", "PilotDead",
// "CUR_PAN", ...). Each is a small drawing of ours, kept in the program's resources.
#pragma once

#include <QCursor>
#include <QIcon>
#include <QString>

// The image of `key`; a null icon for a key the list does not hold.
QIcon ToolbarImage(const QString& key);
// A pointer drawn from the image of `key`, its hot spot in the middle.
QCursor ToolbarCursor(const QString& key);
// The window's icon.
QIcon ProgramIcon();
