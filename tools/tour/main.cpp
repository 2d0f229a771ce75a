// tour DIR OUT: opens the program offscreen on the installation in DIR, signs
// in as the demo's user, and writes into OUT one PNG of the main window, of
// each menu, and of every form of the catalog. Forms added to the catalog are
// photographed without any change here.
#include "app/formcatalog.h"
#include "billing/filtro.h"
#include "core/anotaerro.h"
#include "core/forms/formcatalog.h"
#include "core/forms/mdiHabitarium.h"
#include "core/prompter.h"
#include "core/session.h"
#include "core/widgets/modal.h"
#include "reporting/forms/frmRelatorio.h"

#include <QApplication>
#include <QDir>
#include <QLineEdit>
#include <QLocale>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <cstdio>
#include <memory>

namespace {
QString outDir;
int failures = 0;

void settle()
{
    for (int n = 0; n < 3; ++n)
        QApplication::processEvents();
}

void save(QWidget &w, const QString &name)
{
    settle();
    const QString file = outDir + name + QStringLiteral(".png");
    if (w.grab().save(file))
        std::printf("%s\n", file.toUtf8().constData());
    else {
        std::fprintf(stderr, "tour: não foi possível gravar %s\n", file.toUtf8().constData());
        ++failures;
    }
}

// A modal dialog during the tour: photographed, then hidden without its
// unload, so that no dialog's own rules (the end of the program on a closed
// login) come into play.
void photographDialog(QDialog &d)
{
    d.adjustSize();
    d.show();
    save(d, d.objectName());
    d.hide();
}
}

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QLocale::setDefault(QLocale(QLocale::Portuguese, QLocale::Brazil));
    const QStringList args = app.arguments();
    if (args.size() != 4 && args.size() != 3) {
        std::fprintf(stderr, "uso: tour DIR OUT [USUARIO:SENHA]\n");
        return 2;
    }
    QDir().mkpath(args[2]);
    outDir = QDir(args[2]).absolutePath() + u'/';
    const QString login = args.size() == 4 ? args[3].section(u':', 0, 0) : QStringLiteral("Maria");
    const QString senha = args.size() == 4 ? args[3].section(u':', 1) : QStringLiteral("demo");

    HeadlessPrompter prompter;  // every box answers its default button
    setPrompter(&prompter);
    registerAllForms();

    // The screen of an office PC: every form must fit it.
    mdiHabitarium mdi;
    mdi.resize(1366, 768);
    installReportViewer(mdi.area());
    setModalHandler([&](QDialog &d) {
        if (d.objectName() == QLatin1String("frmSenha")) {
            photographDialog(d);
            d.findChild<QLineEdit *>(QStringLiteral("txtlogin"))->setText(login);
            d.findChild<QLineEdit *>(QStringLiteral("txtsenha"))->setText(senha);
            d.findChild<QPushButton *>(QStringLiteral("cmdOk"))->click();
        } else {
            photographDialog(d);
        }
    });
    try {
        mdi.Carrega(QDir(args[1]).absolutePath());
    } catch (const ProgramEnded &) {
        std::fprintf(stderr, "tour: o programa terminou na entrada (login %s)\n", login.toUtf8().constData());
        return 1;
    }
    mdi.show();
    save(mdi, QStringLiteral("mdiHabitarium"));
    for (QAction *top : mdi.menuBar()->actions()) {
        if (QMenu *menu = top->menu()) {
            emit menu->aboutToShow();
            menu->adjustSize();
            save(*menu, QStringLiteral("menu_") + menu->objectName());
        }
    }

    // Sample context that some forms read when they load.
    session.valorPesq = QString::number(session.codUsuario);
    LimpaErros();
    AnotaErro(kAlertaErro, QStringLiteral("O telefone do proprietário está sem DDD"));
    AnotaErro(kErroFatal, QStringLiteral("Todo Registro deve ter um código válido"));

    // A form may change the session's active file (frmUsucli points it at the
    // system file); every form is photographed on the demo condominium.
    const QString conAtiva = session.conAtiva;
    for (const FormEntry &entry : allForms()) {
        if (entry.name == QLatin1String("frmSenha"))
            continue;  // photographed at the login
        session.conAtiva = conAtiva;
        // The search dialogs read their table and title from the session.
        const bool sistema = entry.name == QLatin1String("frmPesqGeral");
        session.tabPesq = sistema ? QStringLiteral("Clientes") : QStringLiteral("Aptos");
        session.tituloPesq = sistema ? QStringLiteral("Pesquisa de Condomínios") : QStringLiteral("Pesquisa de Apartamentos");
        // The residents of a unit are shown for the demo's first unit.
        session.valorPesq = entry.name == QLatin1String("frmMoradores2") ? QStringLiteral("010101")
                                                                          : QString::number(session.codUsuario);
        // The pick lists of receipts and units take their statements from the session.
        if (entry.name == QLatin1String("frmPesqRec")) {
            session.tabPesq = kContaPadrao;
            session.sql = kListaPadrao;
        } else if (entry.name == QLatin1String("frmPesqRecSel")) {
            session.sql = QStringLiteral("SELECT codigo,nome,nrecibo,nemis,demis FROM Aptos ORDER BY codigo");
        } else if (entry.name == QLatin1String("frmMovPesq")) {  // the entries of the demo's journal
            session.tabPesq = QStringLiteral("Mov08");
            session.tituloPesq = QStringLiteral("Pesquisa de Lançamentos");
        }
        try {
            switch (entry.kind) {
            case FormKind::Child: {
                QWidget *form = mdi.abreForm(entry.name);
                if (!form)
                    break;
                auto *sub = qobject_cast<QMdiSubWindow *>(form->parentWidget());
                sub->adjustSize();
                settle();
                save(*sub, entry.name);
                save(mdi, QStringLiteral("mdi_") + entry.name);
                sub->close();
                settle();
                break;
            }
            case FormKind::Dialog: {
                std::unique_ptr<QWidget> form(entry.make());
                if (auto *dialog = qobject_cast<QDialog *>(form.get())) {
                    dialog->setParent(&mdi, Qt::Dialog);
                    showModal(*dialog);
                }
                break;
            }
            case FormKind::Window: {
                std::unique_ptr<QWidget> form(entry.make());
                form->setAttribute(Qt::WA_DeleteOnClose, false);
                form->show();
                save(*form, entry.name);
                form->hide();
                break;
            }
            }
        } catch (const std::exception &e) {
            std::fprintf(stderr, "tour: %s: %s\n", entry.name.toUtf8().constData(), e.what());
            ++failures;
        }
    }
    setModalHandler({});
    setPrompter(nullptr);
    return failures ? 1 : 0;
}
