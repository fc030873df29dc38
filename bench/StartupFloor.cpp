// The floor for start-up: a bare Qt Widgets window with a menu bar and an 8-item list that
// closes right after its first paint. bench/startup.sh compares the program against it.

#include <QApplication>
#include <QEvent>
#include <QListWidget>
#include <QMainWindow>
#include <QMenuBar>
#include <QTimer>

namespace {

/// Closes the window once the watched widget has been painted.
class QuitAfterPaint : public QObject {
public:
    explicit QuitAfterPaint(QWidget* window) : QObject(window), m_window(window) { }
    bool eventFilter(QObject* object, QEvent* event) override
    {
        if (event->type() == QEvent::Paint && !m_done) {
            m_done = true;
            QTimer::singleShot(0, m_window, &QWidget::close);
        }
        return QObject::eventFilter(object, event);
    }

private:
    QWidget* m_window;
    bool m_done = false;
};

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QMainWindow window;
    window.setWindowTitle(QStringLiteral("Floor"));
    window.menuBar()->addMenu(QStringLiteral("&File"))->addAction(QStringLiteral("E&xit"), &window, &QWidget::close);
    window.menuBar()->addMenu(QStringLiteral("&Help"))->addAction(QStringLiteral("&About"));
    auto* list = new QListWidget(&window);
    for (int i = 1; i <= 8; ++i)
        list->addItem(QStringLiteral("Grade %1").arg(i));
    window.setCentralWidget(list);
    list->viewport()->installEventFilter(new QuitAfterPaint(&window));
    window.resize(640, 480);
    window.show();
    return QApplication::exec();
}
