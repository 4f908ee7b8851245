// Runs the tests of windows and dialogs: on a screen in memory, with the scene graph that the program uses.

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
