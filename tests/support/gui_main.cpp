// Runs the tests of what needs the toolkit: on a screen in memory, with the scene graph that the program
// uses.

#include <gmock/gmock.h>

#include <QGuiApplication>
#include <QQuickWindow>

int main(int argc, char* argv[]) {
    testing::InitGoogleMock(&argc, argv);
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    const QGuiApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
