#pragma once

#include <QString>
#include <QStringList>

class QFont;
class QWidget;

/// Breaks `text` into at most `maxLines` lines of at most `width` pixels in `font`: at word
/// boundaries where there are any, anywhere else (kana and kanji), the last line shortened with
/// "…" when the text does not fit. An empty text is one empty line.
QStringList FitLines(const QString& text, const QFont& font, int width, int maxLines);

/// Shows `full` on a label, check box or radio button within the control's own size: in as many
/// lines as its height holds (at most `maxLines`), the last one shortened when the text is
/// longer. The control keeps the full text and fits it again whenever its size or font changes;
/// its tooltip, accessible name and accessible description are the full text.
void ShowFitted(QWidget* control, const QString& full, int maxLines);

/// The full text last given to ShowFitted for `control` (its own text when it was never given one).
QString FullText(const QWidget* control);

/// Readies a text control for ShowFitted: its width is whatever its layout gives it (never its
/// text's), at least `minimumWidth`, and its height is exactly `lines` lines of its font, so that
/// nothing around it moves with the length of a text.
void MakeTextBox(QWidget* control, int lines, int minimumWidth = 0);
