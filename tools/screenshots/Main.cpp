#include "Product.h"
#include "app/Translations.h"

#include <Velto/ApplicationInfo.h>

#include <QApplication>
#include <QLocale>
#include <QQuickStyle>

#include <gtest/gtest.h>

// Every picture is taken by a walk through the real window, which is a GoogleTest: what cannot be reached
// fails.
int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    using Velto::ApplicationInfo;
    ApplicationInfo::Init("QuiveraApp", "QuiveraApp", QuiveraProduct::vendor, QuiveraProduct::version, "",
                          ApplicationInfo::DataFolderType::User, argc, argv);
    QApplication application(argc, argv);
    orvex::installTranslations(application, QLocale::system().uiLanguages());
    QQuickStyle::setStyle(QStringLiteral("Material"));
    return RUN_ALL_TESTS();
}
