// Interim start window: opens the database in the current folder and shows what it holds.

#include "CharacterDatabase.h"
#include "DatabaseLoadException.h"

#include <QApplication>
#include <QLabel>
#include <QMessageBox>

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QString text;
    try {
        CharacterDatabase& db = GetDatabase();
        db.Preload(nullptr);
        text = QString("Zavoren!\n\n%1 characters, %2 glyph elements, %3 categories")
                   .arg(db.CharacterCount())
                   .arg(db.ElementCount())
                   .arg(db.CategoryCount());
        for (std::uint16_t i = 0; i < db.CategoryCount(); ++i) {
            const auto category = db.LoadCategory(i);
            text += QString("\n%1: %2").arg(QString::fromUtf8(category->Name() ? category->Name() : ""))
                        .arg(category->CharacterCount());
        }
    } catch (const ZavorenCommon::DatabaseLoadException& e) {
        QMessageBox::critical(nullptr, "Zavoren Database Error", QString::fromUtf8(e.what()));
        return 0;
    }
    QLabel window(text);
    window.setWindowTitle("Zavoren!");
    window.setMargin(20);
    window.show();
    return app.exec();
}
