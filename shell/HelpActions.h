#pragma once

#include "UrlOpener.h"

#include <QString>

class QMenuBar;
class QWidget;

/// The maker's site and support address (product data).
inline const char* const MakerSite = "https://quelmar.example.org/zavoren";
inline const char* const SupportAddress = "mailto:support@quelmar.example.org";

/// Help > Contents: opens "Zavoren.html" from the current folder through `open`. A missing
/// document does nothing. Returns whether something was opened.
bool OpenHelpContents(const UrlOpener& open);
/// Help > Links > Quelmar Software site.
void OpenMakerSite(const UrlOpener& open);
/// Help > About: the modal About box, centred over `owner`; its links open through `open`.
void ShowAbout(const UrlOpener& open, QWidget* owner);
/// The Help menu of `bar`: Contents, Links (the maker's site) and About over `owner`.
void AddHelpMenu(QMenuBar* bar, const UrlOpener& open, QWidget* owner);

/// "v1.2.3" from the version compiled in, or "unknown version".
QString VersionText();
