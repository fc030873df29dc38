#pragma once

#include <QWidget>

class QPushButton;

/// A page of the main window. Pages never switch themselves: they report events, and the main
/// window decides what comes next. Enter presses the default button; Esc is the cancel command.
class Page : public QWidget {
    Q_OBJECT
public:
    explicit Page(QWidget* parent = nullptr);

    /// The button that Enter presses.
    QPushButton* DefaultButton() const { return m_defaultButton; }

signals:
    /// Something happened that the main window must act on; codes are per page.
    void pageEvent(quint16 code, quint16 argument);

protected:
    /// Makes `button` the one Enter presses (and shows it as the default).
    void SetDefaultButton(QPushButton* button);
    /// The cancel command (Esc); pages that have one override this.
    virtual void Cancel() { }
    void keyPressEvent(QKeyEvent* event) override;

private:
    QPushButton* m_defaultButton = nullptr;
};

/// Dialog units of `widget`'s font in pixels: a quarter of the average character width across,
/// an eighth of the line height down.
int HorizontalUnits(const QWidget* widget, int units);
int VerticalUnits(const QWidget* widget, int units);

/// Text for a database text that may be absent: the text, or "N/A".
QString TextOrNotAvailable(const char* text);
