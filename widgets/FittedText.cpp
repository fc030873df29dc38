#include "FittedText.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QEvent>
#include <QFontMetrics>
#include <QLabel>
#include <QRadioButton>
#include <QStyle>
#include <QStyleOptionButton>
#include <QTextLayout>

#include <algorithm>

namespace {

/// Kept by a control shown with ShowFitted: its full text, fitted again when the control's size
/// or font changes.
class TextFitter : public QObject {
public:
    TextFitter(QWidget* control, int maxLines) : QObject(control), m_control(control), m_maxLines(maxLines)
    {
        control->installEventFilter(this);
    }
    void Show(const QString& full, int maxLines)
    {
        m_full = full;
        m_maxLines = maxLines;
        Fit();
    }
    const QString& Full() const { return m_full; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (watched == m_control && (event->type() == QEvent::Resize || event->type() == QEvent::FontChange))
            Fit();
        return false;
    }

private:
    void Fit();

    QWidget* m_control;
    int m_maxLines;
    QString m_full;
};

QStyleOptionButton ButtonOption(const QAbstractButton* button)
{
    QStyleOptionButton option;
    option.initFrom(button);
    option.rect = button->rect();
    return option;
}

bool IsRadio(const QWidget* control)
{
    return qobject_cast<const QRadioButton*>(control) != nullptr;
}

/// The width the control's text may take.
int TextWidth(const QWidget* control)
{
    if (const auto* button = qobject_cast<const QAbstractButton*>(control)) {
        const QStyleOptionButton option = ButtonOption(button);
        const auto element = IsRadio(control) ? QStyle::SE_RadioButtonContents : QStyle::SE_CheckBoxContents;
        return button->style()->subElementRect(element, &option, button).width();
    }
    return control->contentsRect().width();
}

void TextFitter::Fit()
{
    const QFontMetrics metrics(m_control->font());
    const int room = std::max(1, m_control->contentsRect().height() / std::max(1, metrics.lineSpacing()));
    const QStringList lines = FitLines(m_full, m_control->font(), std::max(1, TextWidth(m_control)),
        std::min(m_maxLines, room));
    QString shown = lines.join(QLatin1Char('\n'));
    if (auto* label = qobject_cast<QLabel*>(m_control)) {
        label->setText(shown);
    } else if (auto* button = qobject_cast<QAbstractButton*>(m_control)) {
        // Data text, not a caption: an ampersand is shown, never taken for a shortcut.
        button->setText(shown.replace(QLatin1Char('&'), QLatin1String("&&")));
    }
}

TextFitter* FitterOf(const QWidget* control)
{
    for (QObject* child : control->children())
        if (auto* fitter = dynamic_cast<TextFitter*>(child))
            return fitter;
    return nullptr;
}

} // namespace

QStringList FitLines(const QString& text, const QFont& font, int width, int maxLines)
{
    QStringList lines;
    if (text.isEmpty() || maxLines < 1) {
        lines << QString();
        return lines;
    }
    const QFontMetrics metrics(font);
    QTextLayout layout(text, font);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    for (;;) {
        QTextLine line = layout.createLine();
        if (!line.isValid())
            break;
        line.setLineWidth(width);
        if (static_cast<int>(lines.size()) == maxLines - 1) {
            // The last line there is room for takes the rest, shortened if need be.
            const QString rest = text.mid(line.textStart()).trimmed();
            lines << metrics.elidedText(rest, Qt::ElideRight, width);
            break;
        }
        lines << text.mid(line.textStart(), line.textLength()).trimmed();
    }
    layout.endLayout();
    if (lines.isEmpty())
        lines << QString();
    return lines;
}

void ShowFitted(QWidget* control, const QString& full, int maxLines)
{
    if (auto* label = qobject_cast<QLabel*>(control)) {
        // The lines are broken here; a name or a meaning is never read as markup.
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(false);
        label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    }
    TextFitter* fitter = FitterOf(control);
    if (!fitter)
        fitter = new TextFitter(control, maxLines);
    fitter->Show(full, maxLines);
    control->setToolTip(full);
    control->setAccessibleName(full);
    control->setAccessibleDescription(full);
}

QString FullText(const QWidget* control)
{
    if (const TextFitter* fitter = FitterOf(control))
        return fitter->Full();
    if (const auto* label = qobject_cast<const QLabel*>(control))
        return label->text();
    if (const auto* button = qobject_cast<const QAbstractButton*>(control))
        return button->text();
    return QString();
}

void MakeTextBox(QWidget* control, int lines, int minimumWidth)
{
    const QFontMetrics metrics(control->font());
    const int textHeight = lines * metrics.lineSpacing();
    int height = textHeight;
    if (const auto* button = qobject_cast<const QAbstractButton*>(control)) {
        const QStyleOptionButton option = ButtonOption(button);
        const auto type = IsRadio(control) ? QStyle::CT_RadioButton : QStyle::CT_CheckBox;
        height = button->style()->sizeFromContents(type, &option, QSize(0, textHeight), button).height();
    } else {
        const QMargins margins = control->contentsMargins();
        height += margins.top() + margins.bottom();
    }
    control->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    control->setMinimumWidth(minimumWidth);
    control->setFixedHeight(height);
}
