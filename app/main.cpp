// The program: a Qt application in Brazilian Portuguese whose first object is
// the main window. A routine that ends the program, and a failure of the
// database, reach the top level here.
#include "app/formcatalog.h"
#include "core/forms/icones.h"
#include "core/forms/mdiHabitarium.h"
#include "core/widgets/messageboxprompter.h"
#include "core/widgets/modal.h"
#include "reporting/forms/frmRelatorio.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace {
class Aplicacao : public QApplication {
public:
    using QApplication::QApplication;

    bool notify(QObject *receiver, QEvent *event) override
    {
        try {
            return QApplication::notify(receiver, event);
        } catch (...) {
            trataFalhaNoTopo();
        }
        return false;
    }
};
}

int main(int argc, char **argv)
{
    Aplicacao app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Habitarium"));
    QApplication::setWindowIcon(iconeBarra(1));
    QLocale::setDefault(QLocale(QLocale::Portuguese, QLocale::Brazil));
    QTranslator qtTexts;
    if (qtTexts.load(QLocale(QLocale::Portuguese, QLocale::Brazil), QStringLiteral("qtbase"), QStringLiteral("_"),
                     QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(&qtTexts);

    MessageBoxPrompter prompter;
    setPrompter(&prompter);
    registerAllForms();

    mdiHabitarium mdi;
    installReportViewer(mdi.area());  // every print opens in the main window's preview
    try {
        mdi.Carrega(QCoreApplication::applicationDirPath());
    } catch (...) {
        trataFalhaNoTopo();
        return 0;
    }
    if (fimProgramaPedido())
        return 0;
    mdi.showMaximized();
    const int code = app.exec();
    setPrompter(nullptr);
    return code;
}
