#include <QApplication>
#include <QQuickStyle>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    QQuickStyle::setStyle(QStringLiteral("Material"));
    return RUN_ALL_TESTS();
}
