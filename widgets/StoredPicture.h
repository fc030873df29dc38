#pragma once

#include <QIcon>
#include <QImage>
#include <QString>

/// A picture of the program's resources as it was decoded at build time (pictures/NAME.pic):
/// shown without decoding or looking for image readers, which a PNG would cost at start-up.
/// Its device pixel ratio is 2 for a name ending in "@2x". A null image when there is none.
QImage StoredPicture(const QString& name);

/// Gives back the memory that holds a stored picture's pixels once it is no longer shown (the
/// start-up picture, say): they stay in the program's file and are read from it again should
/// the picture be drawn again. Images made from it must be gone first.
void ReleaseStoredPicture(const QString& name);

/// The program's icon (its windows' icon), from the stored picture: a QIcon made from a file name
/// would look through the icon engine plugins first.
QIcon ProgramIcon();
