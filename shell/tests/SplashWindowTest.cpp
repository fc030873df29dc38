// The start-up window: its picture and its bar, which follows the database reader's progress.

#include "SplashWindow.h"
#include "FileCharacterDatabase.h"

#include <QProgressBar>
#include <QTest>

class SplashWindowTest : public QObject {
    Q_OBJECT

private slots:
    void splashStartsAtThreeQuartersThenFollowsTheReader()
    {
        SplashWindow splash;
        QVERIFY(splash.HasPicture());
        QVERIFY(splash.height() >= 240);
        QCOMPARE(splash.Bar()->geometry().top(), 230);
        QCOMPARE(splash.Bar()->geometry().bottom(), 239);
        QCOMPARE(splash.Bar()->minimum(), 0);
        QCOMPARE(splash.Bar()->maximum(), 100);
        QCOMPARE(splash.Bar()->value(), 75);
        // It must never cover the User Manager shown while it is up.
        QVERIFY(!(splash.windowFlags() & Qt::WindowStaysOnTopHint));
        splash.show();
        // The bar is drawn filled in the highlight colour as far as its value: up to its last
        // highlighted pixel (in blocks with gaps between them, or whole, as the style draws it).
        const auto filledShare = [&splash] {
            const QImage shot = splash.Bar()->grab().toImage();
            const QRgb highlight = splash.Bar()->palette().color(QPalette::Highlight).rgb();
            const int row = shot.height() / 2;
            int end = 0;
            for (int x = 0; x < shot.width(); ++x)
                if (shot.pixel(x, row) == highlight)
                    end = x + 1;
            return double(end) / shot.width();
        };
        QVERIFY2(qAbs(filledShare() - 0.75) < 0.05, qPrintable(QString::number(filledShare())));
        // Repaints follow the bar's visible fill, not every one of thousands of reports.
        struct PaintCounter : QObject {
            int paints = 0;
            bool eventFilter(QObject*, QEvent* e) override
            {
                paints += e->type() == QEvent::Paint;
                return false;
            }
        } counter;
        splash.Bar()->installEventFilter(&counter);
        // Each paint of the bar shows a fill it did not show before.
        struct FillRecorder : QObject {
            QProgressBar* bar = nullptr;
            QList<int> fills;
            bool eventFilter(QObject*, QEvent* e) override
            {
                if (e->type() == QEvent::Paint) {
                    const qint64 span = qint64(bar->maximum()) - bar->minimum();
                    fills.append(span > 0 ? int((qint64(bar->value()) - bar->minimum()) * bar->width() / span) : 0);
                }
                return false;
            }
        } recorder;
        recorder.bar = splash.Bar();
        splash.Bar()->installEventFilter(&recorder);
        FileCharacterDatabase db(ZAVOREN_STANDARD_DATABASE);
        db.Preload(&splash);
        QVERIFY(counter.paints > 0);
        QVERIFY2(counter.paints <= splash.Bar()->width() + 2, qPrintable(QString::number(counter.paints)));
        for (qsizetype i = 1; i < recorder.fills.size(); ++i)
            QVERIFY2(recorder.fills[i] != recorder.fills[i - 1], qPrintable(QString::number(i)));
        // The last report always shows: the bar ends full.
        QCOMPARE(recorder.fills.last(), splash.Bar()->width() - 1);
        QVERIFY2(filledShare() > 0.95, qPrintable(QString::number(filledShare())));
        QCOMPARE(splash.Bar()->maximum(), int(db.CharacterCount()) + int(db.ElementCount()));
        QCOMPARE(splash.Bar()->value(), int(db.CharacterCount()) + int(db.ElementCount()) - 1);
    }
};

QTEST_MAIN(SplashWindowTest)
#include "SplashWindowTest.moc"
