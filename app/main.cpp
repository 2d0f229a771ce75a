#include <QApplication>
#include <QLabel>
#include <QLocale>

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    QLocale::setDefault(QLocale(QLocale::Portuguese, QLocale::Brazil));
    QLabel label(QStringLiteral("Habitarium"));
    label.show();
    return app.exec();
}
