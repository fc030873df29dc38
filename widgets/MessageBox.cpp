#include "MessageBox.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

QMessageBox::StandardButton ShowMessage(QWidget* parent, QMessageBox::Icon icon, const QString& title,
    const QString& text, QMessageBox::StandardButtons buttons, QMessageBox::StandardButton defaultButton)
{
    if (TestMessageHook())
        return TestMessageHook()(icon, title, text);
    if (const char* answer = std::getenv("ZAVOREN_TEST_ANSWER"); answer && *answer) {
        std::fprintf(stderr, "MESSAGE %s: %s\n", title.toUtf8().constData(), text.toUtf8().constData());
        std::fflush(stderr);
        if (std::strcmp(answer, "yes") == 0)
            return QMessageBox::Yes;
        if (std::strcmp(answer, "no") == 0)
            return QMessageBox::No;
        if (std::strcmp(answer, "cancel") == 0)
            return QMessageBox::Cancel;
        return QMessageBox::Ok;
    }
    QMessageBox box(icon, title, text, buttons, parent);
    if (defaultButton != QMessageBox::NoButton)
        box.setDefaultButton(defaultButton);
    return static_cast<QMessageBox::StandardButton>(box.exec());
}

MessageHook& TestMessageHook()
{
    static MessageHook hook;
    return hook;
}

void ShowStoreError(QWidget* parent, const char* title, const char* message)
{
    ShowMessage(parent, QMessageBox::Critical, QString::fromUtf8(title), QString::fromUtf8(message));
}
