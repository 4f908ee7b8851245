// Runs the tests of windows and dialogs: off screen, with the program's scene graph.

#include <gmock/gmock.h>

#include <QApplication>
#include <QQuickWindow>

int main(int argc, char* argv[]) {
    testing::InitGoogleMock(&argc, argv);
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
