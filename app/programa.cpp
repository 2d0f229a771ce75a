#include "app/programa.h"

#include "app/formcatalog.h"
#include "core/forms/icones.h"
#include "core/forms/mdiHabitarium.h"
#include "core/widgets/modal.h"
#include "reporting/forms/frmRelatorio.h"

#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

bool Aplicacao::notify(QObject *receiver, QEvent *event)
{
    try {
        return QApplication::notify(receiver, event);
    } catch (...) {
        trataFalhaNoTopo();
    }
    return false;
}

void preparaPrograma(Aplicacao &app)
{
    QApplication::setApplicationName(QStringLiteral("Habitarium"));
    QApplication::setWindowIcon(iconeBarra(1));
    QLocale::setDefault(QLocale(QLocale::Portuguese, QLocale::Brazil));
    auto *qtTexts = new QTranslator(&app);
    if (qtTexts->load(QLocale(QLocale::Portuguese, QLocale::Brazil), QStringLiteral("qtbase"), QStringLiteral("_"),
                      QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(qtTexts);
    registerAllForms();
}

bool iniciaPrograma(mdiHabitarium &mdi, const QString &programDir, ReportViewer viewer)
{
    if (viewer)
        setReportViewer(std::move(viewer));
    else
        installReportViewer(mdi.area());  // every print opens in the main window's preview
    try {
        mdi.Carrega(programDir);
    } catch (...) {
        trataFalhaNoTopo();
        return false;
    }
    return !fimProgramaPedido();
}
