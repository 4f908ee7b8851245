// The minimum cost of a clock on the screen with this toolkit: a window with a text that changes each second.
// The baseline for the program's cost in the same run.
//
// Usage: bare_clock X Y, the window's position.

#include <QGuiApplication>
#include <QPainter>
#include <QRasterWindow>
#include <QTimer>

namespace {

class BareClock final : public QRasterWindow {
protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.fillRect(QRect(QPoint(), size()), Qt::black);
        painter.setPen(Qt::white);
        painter.setFont(QFont("Sans", 40));
        painter.drawText(QRect(QPoint(), size()), Qt::AlignCenter, QString::number(100'000 + ++count_));
    }

private:
    int count_ = 0;
};

}  // namespace

int main(int argc, char** argv) {
    QGuiApplication application(argc, argv);
    if (argc != 3) return 2;
    BareClock window;
    window.setFlags(Qt::FramelessWindowHint);
    window.setGeometry(QString(argv[1]).toInt(), QString(argv[2]).toInt(), 220, 130);
    window.show();
    QTimer timer;
    timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&timer, &QTimer::timeout, &window, [&window] { window.update(); });
    timer.start(1000);
    return QGuiApplication::exec();
}
