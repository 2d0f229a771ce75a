// Every test executable runs inside a QApplication on the offscreen platform,
// with the Brazilian locale as default, as the program itself runs.
#include <QApplication>
#include <QLocale>
#include <gtest/gtest.h>

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QLocale::setDefault(QLocale(QLocale::Portuguese, QLocale::Brazil));
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
