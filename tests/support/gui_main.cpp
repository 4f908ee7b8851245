// Runs the tests that need the toolkit: off screen, with the program's scene graph.

#include <gmock/gmock.h>

#include <QGuiApplication>
#include <QQuickWindow>

int main(int argc, char* argv[]) {
    testing::InitGoogleMock(&argc, argv);
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    const QGuiApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
