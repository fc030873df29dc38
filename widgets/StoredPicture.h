#pragma once

#include <QIcon>
#include <QImage>
#include <QString>

/// A picture of the program's resources as it was decoded at build time (pictures/NAME.pic):
/// shown without decoding or looking for image readers, which a PNG would cost at start-up.
/// Its device pixel ratio is 2 for a name ending in "@2x". A null image when there is none.
QImage StoredPicture(const QString& name);

/// The program's icon (its windows' icon), from the stored picture: a QIcon made from a file name
/// would look through the icon engine plugins first.
QIcon ProgramIcon();
