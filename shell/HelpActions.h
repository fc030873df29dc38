#pragma once

#include <QString>

class QWidget;

/// The maker's site and support address (product data).
inline const char* const MakerSite = "https://quelmar.example.org/zavoren";
inline const char* const SupportAddress = "mailto:support@quelmar.example.org";

/// Help > Contents: opens "Zavoren.html" from the current folder in the desktop's viewer. A
/// missing document does nothing. Returns whether something was opened.
bool OpenHelpContents();
/// Help > Links > Quelmar Software site.
void OpenMakerSite();
/// Help > About: the modal About box, centred over `owner`.
void ShowAbout(QWidget* owner);
/// "v1.2.3" from the version compiled in, or "unknown version".
QString VersionText();
