// The main window, login, password change, activation and the small dialogs,
// driven offscreen by control name with the scripted prompter.
#include "shellsupport.h"

#include "app/formcatalog.h"
#include "core/anotaerro.h"
#include "core/conversions.h"
#include "core/datastore.h"
#include "core/forms/formcatalog.h"
#include "core/forms/frmAtImpr.h"
#include "core/forms/frmAtempr.h"
#include "core/forms/frmErros.h"
#include "core/forms/frmTrocasen.h"
#include "core/forms/mdiHabitarium.h"
#include "core/installation.h"
#include "core/scramble.h"
#include "core/session.h"
#include "core/widgets/maskedit.h"
#include "core/widgets/modal.h"
#include "support/scriptedprompter.h"

#include <QAction>
#include <QApplication>
#include <QDate>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QSet>
#include <QTableWidget>
#include <QTest>
#include <QVBoxLayout>
#include <gtest/gtest.h>
#include <memory>

namespace {
const QStringList kSoUsuario = {QStringLiteral("mnuApart"),    QStringLiteral("mnuBlocos"),  QStringLiteral("mnuMao"),
                                QStringLiteral("mnuMoradores"), QStringLiteral("mnuPj"),      QStringLiteral("mnuVeiculos"),
                                QStringLiteral("mnuDiv"),       QStringLiteral("mnuRecibos"), QStringLiteral("mnuRel"),
                                QStringLiteral("mnuMovimento"), QStringLiteral("mnuCartas"),  QStringLiteral("mnuTabelas"),
                                QStringLiteral("mnuAtemp"),     QStringLiteral("mnuIntegra"), QStringLiteral("mnuEtiq")};

bool enabled(mdiHabitarium &mdi, const QString &name)
{
    QAction *a = mdi.acao(name);
    EXPECT_NE(a, nullptr) << name.toStdString();
    return a && a->isEnabled();
}

// The entries a login enables: the administrator's, or a user's. Areas is
// never given back.
void expectEntries(mdiHabitarium &mdi, bool administrador)
{
    EXPECT_EQ(enabled(mdi, QStringLiteral("mnuCondominios")), administrador);
    EXPECT_EQ(enabled(mdi, QStringLiteral("mnuAjuste")), administrador);
    for (const QString &name : kSoUsuario)
        EXPECT_EQ(enabled(mdi, name), !administrador) << name.toStdString();
    EXPECT_FALSE(enabled(mdi, QStringLiteral("mnuAreas")));
    for (int n = 1; n <= 14; ++n)
        EXPECT_EQ(enabled(mdi, QStringLiteral("tob%1").arg(n, 2, 10, QLatin1Char('0'))), !administrador || n == 12) << n;
}

ModalScript::Act activate(const QString &code)
{
    return [code](QDialog &d) {
        auto &form = static_cast<frmAtempr &>(d);
        d.findChild<MaskEdit *>(QStringLiteral("mskCodcli"))->setText(code);
        form.mskCodcli_LostFocus();
        d.findChild<QPushButton *>(QStringLiteral("cmdGravar"))->click();
    };
}
}

TEST(MainWindow, AdministratorLoginThenAUserWhoseMissingFileIsCreated)
{
    ShellDir dir;
    mdiHabitarium mdi;
    ScriptedPrompter p;
    ModalScript m;
    m.on(QStringLiteral("frmSenha"), typeLogin(QStringLiteral("admin"), QStringLiteral("mestre")));
    mdi.Carrega(dir.path());

    EXPECT_EQ(mdi.windowTitle(),
              QStringLiteral("Habitarium - Versão 1.0.0 - {Administradora Teste}  -  Usuário: Administrador"));
    EXPECT_EQ(session.usuario, QStringLiteral("Administrador"));
    EXPECT_EQ(session.empat, 0);
    EXPECT_TRUE(session.conAtiva.isEmpty());
    EXPECT_TRUE(session.confirmaSaida);
    expectEntries(mdi, true);
    EXPECT_TRUE(p.calls.empty());
    EXPECT_TRUE(mdi.close());  // no question after an administrator's login

    // A change of user: the missing file is created on yes; Areas stays off.
    m.on(QStringLiteral("frmSenha"), typeLogin(QStringLiteral("Maria"), QStringLiteral("segredo")));
    p.answer(vbYes, QStringLiteral("Não Existe o Banco de Dados do Condomínio 1, Cria um Novo Vazio ? "));
    mdi.acao(QStringLiteral("tob12"))->trigger();
    EXPECT_EQ(mdi.windowTitle(), QStringLiteral("Habitarium - Versão 1.0.0 - {Administradora Teste}  -  Usuário: Maria  -  "
                                                "Empresa Ativa: 1 - Residencial Teste"));
    EXPECT_EQ(p.last().title, QStringLiteral("Criar Arquivo..."));
    EXPECT_EQ(session.conAtiva, connectionString(dir.path(), QStringLiteral("Con001.mdb"), QString()));
    // The new file is seeded with the login's "(Nenhum)" rows.
    EXPECT_EQ(leLinhas(session.conAtiva, QStringLiteral("SELECT codigo,nome,tipo FROM Pjuridica ORDER BY tipo")),
              QStringLiteral("0|(Nenhum)|0\n0|(Nenhum)|1\n"));
    EXPECT_FALSE(session.confirmaSaida);
    expectEntries(mdi, false);
}

TEST(MainWindow, UserWithoutCondominiumIsTakenToActivation)
{
    ShellDir dir;
    dir.makeCondominium(1);
    mdiHabitarium mdi;
    ScriptedPrompter p;
    ModalScript m;
    m.on(QStringLiteral("frmSenha"), typeLogin(QStringLiteral("Joao"), QStringLiteral("abc")));
    m.on(QStringLiteral("frmAtempr"), activate(QStringLiteral("001")));
    mdi.Carrega(dir.path());
    EXPECT_EQ(session.empat, 1);
    EXPECT_EQ(session.nomeEmp, QStringLiteral("Residencial Teste"));
    EXPECT_TRUE(mdi.windowTitle().endsWith(QStringLiteral("Usuário: Joao  -  Empresa Ativa: 1 - Residencial Teste")));
    EXPECT_EQ(session.conAtiva, connectionString(dir.path(), QStringLiteral("Con001.mdb"), QString()));
    EXPECT_EQ(dir.sistema(QStringLiteral("SELECT empat FROM Usuarios WHERE nome = 'Joao'")),
              QStringLiteral("1"));

    // Activation again, from the menu: a code of 0 changes nothing.
    m.on(QStringLiteral("frmAtempr"), activate(QStringLiteral("000")));
    mdi.acao(QStringLiteral("mnuAtemp"))->trigger();
    EXPECT_EQ(session.empat, 1);
    EXPECT_TRUE(p.calls.empty());
}

TEST(MainWindow, ThreeRefusedTriesEndTheProgramAfterTheMessage)
{
    ShellDir dir;
    mdiHabitarium mdi;
    ScriptedPrompter p;
    ModalScript m;
    int triesSeen = 0;
    m.on(QStringLiteral("frmSenha"), [&](QDialog &d) {
        auto *login = d.findChild<QLineEdit *>(QStringLiteral("txtlogin"));
        auto *senha = d.findChild<QLineEdit *>(QStringLiteral("txtsenha"));
        auto *ok = d.findChild<QPushButton *>(QStringLiteral("cmdOk"));
        ok->click();  // blank fields: not a try
        EXPECT_TRUE(p.calls.empty());
        for (const char *user : {"Maria", "Ninguem", "maria"}) {
            login->setText(QString::fromLatin1(user));
            senha->setText(QStringLiteral("errada"));
            ++triesSeen;
            ok->click();  // the third throws ProgramEnded
            EXPECT_TRUE(login->text().isEmpty());
        }
    });
    EXPECT_THROW(mdi.Carrega(dir.path()), ProgramEnded);
    EXPECT_EQ(triesSeen, 3);
    ASSERT_EQ(p.calls.size(), 3u);
    for (const PromptCall &c : p.calls) {
        EXPECT_EQ(c.text, QStringLiteral("Usuário não cadastrado ou senha não confere !"));
        EXPECT_EQ(c.title, QStringLiteral("Controle de Acesso"));
        EXPECT_EQ(c.style, vbCritical);
    }
    EXPECT_TRUE(p.programEnded);
}

TEST(MainWindow, CancelledOrClosedLoginEndsTheProgram)
{
    ShellDir dir;
    // Cancelar, then Esc or the frame's close.
    for (const ModalScript::Act &sai : {clickButton(QStringLiteral("cmdcancelar")), ModalScript::Act([](QDialog &d) { d.reject(); })}) {
        mdiHabitarium mdi;
        ModalScript m;
        m.on(QStringLiteral("frmSenha"), sai);
        EXPECT_THROW(mdi.Carrega(dir.path()), ProgramEnded);
    }
}

TEST(MainWindow, FirstInstallationWritesTheSettings)
{
    ShellDir dir;
    QFile::remove(dir.file(kSettingsFile));
    {
        mdiHabitarium mdi;
        ModalScript m;
        m.on(QStringLiteral("frmInstalacao"), clickButton(QStringLiteral("cmdCancelar")));
        EXPECT_THROW(mdi.Carrega(dir.path()), ProgramEnded);
        EXPECT_FALSE(QFile::exists(dir.file(kSettingsFile)));
    }
    mdiHabitarium mdi;
    ScriptedPrompter p;
    ModalScript m;
    m.on(QStringLiteral("frmInstalacao"), [&](QDialog &d) {
        d.findChild<QLineEdit *>(QStringLiteral("txtCliente"))->setText(QStringLiteral("Gestão Predial Ipê"));
        d.findChild<QLineEdit *>(QStringLiteral("txtLogin"))->setText(QStringLiteral("gerente"));
        d.findChild<QLineEdit *>(QStringLiteral("txtSenha"))->setText(QStringLiteral("um"));
        d.findChild<QLineEdit *>(QStringLiteral("txtConfirma"))->setText(QStringLiteral("dois"));
        auto *gravar = d.findChild<QPushButton *>(QStringLiteral("cmdGravar"));
        gravar->click();  // the two passwords differ
        EXPECT_EQ(p.last().text, QStringLiteral("A senha e a confirmação não conferem !"));
        EXPECT_FALSE(QFile::exists(dir.file(kSettingsFile)));
        d.findChild<QLineEdit *>(QStringLiteral("txtSenha"))->setText(QStringLiteral("chave9"));
        d.findChild<QLineEdit *>(QStringLiteral("txtConfirma"))->setText(QStringLiteral("chave9"));
        gravar->click();
    });
    m.on(QStringLiteral("frmSenha"), typeLogin(QStringLiteral("gerente"), QStringLiteral("chave9")));
    mdi.Carrega(dir.path());
    InstallationSettings s;
    ASSERT_TRUE(readInstallationSettings(dir.path(), s));
    EXPECT_EQ(s.nomeCliente, QStringLiteral("Gestão Predial Ipê"));
    EXPECT_EQ(s.adminSenha, EmbaralhaAdm(QStringLiteral("chave9")));
    EXPECT_EQ(session.usuario, QStringLiteral("Administrador"));
    EXPECT_TRUE(mdi.windowTitle().contains(QStringLiteral("{Gestão Predial Ipê}")));
}

TEST(MainWindow, TheTwoExitRoads)
{
    ShellDir dir;
    mdiHabitarium mdi;
    ScriptedPrompter p;
    p.answer(vbNo, QStringLiteral("Você Quer Realmente Sair ?"));
    mdi.acao(QStringLiteral("mnuSair"))->trigger();
    EXPECT_EQ(p.last().title, QStringLiteral("Mensagem de Saída"));
    EXPECT_EQ(p.last().style, vbYesNo + vbQuestion + vbDefaultButton2);
    p.answer(vbYes, QStringLiteral("Você Quer Realmente Sair ?"));
    EXPECT_THROW(mdi.mnuSair_Click(), ProgramEnded);  // even before any login

    const size_t before = p.calls.size();
    session.confirmaSaida = true;  // no user has signed in
    mdi.show();
    EXPECT_TRUE(mdi.close());
    EXPECT_EQ(p.calls.size(), before);

    session.confirmaSaida = false;  // a normal user has signed in
    mdi.show();
    p.answer(vbNo, QStringLiteral("Você Quer Realmente Sair ?"));
    EXPECT_FALSE(mdi.close());
    EXPECT_TRUE(mdi.isVisible());
    p.answer(vbYes, QStringLiteral("Você Quer Realmente Sair ?"));
    EXPECT_TRUE(mdi.close());
}

TEST(MainWindow, MenuRightsAreReadAtEachClick)
{
    ShellDir dir;
    registerCoreForms();
    mdiHabitarium mdi;
    session.usuario = QStringLiteral("Joao");
    mdi.aplicaUsuario();
    ScriptedPrompter p;
    mdi.acao(QStringLiteral("mnuPesqfin"))->trigger();
    ASSERT_EQ(p.calls.size(), 1u);
    EXPECT_EQ(p.last().text, QStringLiteral("Usuário não autorizado a efetuar pesquisas financeiras !"));
    EXPECT_EQ(p.last().title, QStringLiteral("Atenção..."));
    EXPECT_EQ(p.last().style, vbCritical);
    mdi.acao(QStringLiteral("mnuBaixa"))->trigger();
    EXPECT_EQ(p.last().text, QStringLiteral("Usuário não autorizado a efetuar pesquisas !"));
    mdi.acao(QStringLiteral("mnuAjhon"))->trigger();
    EXPECT_EQ(p.last().text, QStringLiteral("Usuário não autorizado a ajustar taxas !"));
    // The right given while signed in counts at the next click (here only the
    // core forms are in the catalog, so the entry gets as far as the catalog).
    dir.execSistema(QStringLiteral("UPDATE Usuarios SET cfcon = True Where nome = 'Joao'"));
    mdi.acao(QStringLiteral("mnuBaixa"))->trigger();
    EXPECT_TRUE(p.last().text.startsWith(QStringLiteral("Não foi possível abrir esta função."))) << p.last().text.toStdString();

    // Dead entries do nothing at all.
    const size_t before = p.calls.size();
    for (const char *dead : {"mnuAreas", "mnuGerarC", "mnuInfracao", "mnuDiversos", "mnuPorc", "tob01", "tob08", "tob11"})
        mdi.acao(QString::fromLatin1(dead))->trigger();
    EXPECT_EQ(p.calls.size(), before);
}

// Every menu entry and toolbar button opens a form of the catalog or is dead by
// design: a misspelt name is neither.
TEST(MainWindow, EveryEntryAndButtonReachesTheCatalog)
{
    registerAllForms();
    mdiHabitarium mdi;
    QStringList dead, own, opened;
    for (QAction *a : mdi.findChildren<QAction *>()) {
        const QString name = a->objectName();
        if (a->isSeparator() || a->menu() || !(name.startsWith(QLatin1String("mnu")) || name.startsWith(QLatin1String("tob"))))
            continue;
        QString form = a->property("form").toString();
        if (a->property("menu").isValid()) {
            const QAction *entry = mdi.acao(a->property("menu").toString());
            ASSERT_NE(entry, nullptr) << name.toStdString();
            form = entry->property("form").toString();
        }
        if (a->property("morta").toBool())
            dead << name;
        else if (form.isEmpty())
            own << name;
        else
            opened << form;
        if (!form.isEmpty())
            EXPECT_NE(findForm(form), nullptr) << name.toStdString() << " opens " << form.toStdString();
    }
    dead.sort();
    own.sort();
    EXPECT_EQ(dead, (QStringList{"mnuAreas", "mnuDiversos", "mnuGerarC", "mnuInfracao", "mnuPorc", "tob01", "tob08", "tob11"}));
    EXPECT_EQ(own, (QStringList{"mnuAtemp", "mnuCascata", "mnuMusu", "mnuSair", "tob12", "tob13"}));
    opened.removeDuplicates();
    EXPECT_EQ(opened.size(), 45);  // the forms of the menu; the toolbar repeats some of them
    // The catalog names the forms it makes.
    const FormEntry *sobre = findForm(QStringLiteral("frmSobre"));
    ASSERT_NE(sobre, nullptr);
    std::unique_ptr<QWidget> made(sobre->make());
    EXPECT_EQ(made->objectName(), QStringLiteral("frmSobre"));
}

// While a form is active its own access keys win over the menu bar's:
// Alt+A presses "&Apagar" instead of opening "&Arquivos".
TEST(MainWindow, TheActiveFormsAccessKeysWinOverTheMenuBar)
{
    QStringList pressed;
    registerForm(QStringLiteral("frmTeclas"), FormKind::Child, [&pressed] {
        auto *form = new QWidget;
        auto *layout = new QVBoxLayout(form);
        layout->addWidget(new QLineEdit(form));
        for (const QString &caption : {QStringLiteral("&Apagar"), QStringLiteral("&Cancelar"), QStringLiteral("&Imprimir")}) {
            auto *b = new QPushButton(caption, form);
            QObject::connect(b, &QPushButton::clicked, [&pressed, caption] { pressed << caption; });
            layout->addWidget(b);
        }
        return form;
    });
    mdiHabitarium mdi;
    mdi.show();
    mdi.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&mdi));
    QWidget *form = mdi.abreForm(QStringLiteral("frmTeclas"));
    ASSERT_NE(form, nullptr);
    form->findChild<QLineEdit *>()->setFocus();
    for (Qt::Key key : {Qt::Key_A, Qt::Key_C, Qt::Key_I}) {
        QTest::keyClick(QApplication::focusWidget(), key, Qt::AltModifier);
        EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << "a menu opened on Alt+" << char(key);
        if (QWidget *popup = QApplication::activePopupWidget())
            popup->close();
    }
    EXPECT_EQ(pressed, (QStringList{QStringLiteral("&Apagar"), QStringLiteral("&Cancelar"), QStringLiteral("&Imprimir")}));
}

TEST(MainWindow, AFormThatFailsToLoadIsNotOpenedAndTheProgramGoesOn)
{
    ShellDir dir;
    mdiHabitarium mdi;
    session.usuario = QStringLiteral("Maria");
    mdi.aplicaUsuario();
    // Activation left with cmdSair: conAtiva names a file that is not there.
    session.conAtiva = connectionString(dir.path(), QStringLiteral("Con004.mdb"), QString());
    registerForm(QStringLiteral("frmFalhaNoLoad"), FormKind::Child, [] {
        auto form = std::make_unique<QWidget>();
        Connection cn;
        cn.Open(session.conAtiva);
        return form.release();
    });
    ScriptedPrompter p;
    EXPECT_EQ(mdi.abreForm(QStringLiteral("frmFalhaNoLoad")), nullptr);
    EXPECT_TRUE(mdi.area()->subWindowList().isEmpty());
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    // The same handler covers the right's test on the system file.
    session.conSistema = connectionString(dir.path(), QStringLiteral("Falta.mdb"), QString());
    mdi.acao(QStringLiteral("mnuPesqfin"))->trigger();
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    // Each failure says why, once, and the program goes on.
    ASSERT_EQ(p.calls.size(), 2u);
    EXPECT_TRUE(p.calls[0].text.startsWith(QStringLiteral("Não foi possível abrir esta função.")));
    EXPECT_TRUE(p.calls[0].text.contains(QStringLiteral("Con004.mdb")));
    EXPECT_EQ(p.calls[1].title, QStringLiteral("Atenção"));
    EXPECT_FALSE(p.programEnded);
}

TEST(MainWindow, AFormOpenedTwiceAndTheWindowList)
{
    ShellDir dir;
    registerCoreForms();
    mdiHabitarium mdi;
    // A form opened twice comes to the front instead of a second copy.
    QWidget *sobre = mdi.abreForm(QStringLiteral("frmSobre"));
    ASSERT_NE(sobre, nullptr);
    EXPECT_EQ(mdi.abreForm(QStringLiteral("frmSobre")), sobre);
    mdi.acao(QStringLiteral("mnuSobre"))->trigger();
    EXPECT_EQ(mdi.area()->subWindowList().size(), 1);
    EXPECT_EQ(sobre->windowTitle(), QStringLiteral("Sobre o Habitarium"));
    EXPECT_EQ(sobre->findChild<QLabel *>(QStringLiteral("lblVersion"))->text(), QStringLiteral("Versão 1.0.0"));

    QMenu *janelas = mdi.findChild<QMenu *>(QStringLiteral("mnuJanelas"));
    emit janelas->aboutToShow();
    QStringList texts;
    for (QAction *a : janelas->actions())
        texts << a->text();
    EXPECT_TRUE(texts.contains(QStringLiteral("&1 Sobre o Habitarium"))) << texts.join(QLatin1Char('|')).toStdString();

    sobre->findChild<QPushButton *>(QStringLiteral("cmdOK"))->click();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(mdi.area()->subWindowList().isEmpty());
}

TEST(PasswordChange, TheTryCounterAndTheSave)
{
    ShellDir dir;
    session.valorPesq = QStringLiteral("1");
    {
        ScriptedPrompter p;
        frmTrocasen form;
        ASSERT_FALSE(descarregado(form));
        EXPECT_EQ(form.findChild<QLabel *>(QStringLiteral("lblData"))->text(), QStringLiteral("02/01/2008"));
        auto *senha = form.findChild<QLineEdit *>(QStringLiteral("txtsenha"));
        auto *gravar = form.findChild<QPushButton *>(QStringLiteral("cmdGravar"));
        EXPECT_FALSE(gravar->isEnabled());
        for (int n = 1; n <= 2; ++n) {
            senha->setText(QStringLiteral("errada"));
            form.txtsenha_LostFocus();
            EXPECT_EQ(session.j, n);
            EXPECT_TRUE(senha->text().isEmpty());
        }
        senha->setText(QStringLiteral("segredo"));  // right on the third try: the counter starts again
        form.txtsenha_LostFocus();
        EXPECT_EQ(session.j, 0);
        EXPECT_TRUE(gravar->isEnabled());
        EXPECT_TRUE(p.calls.empty());

        form.findChild<QLineEdit *>(QStringLiteral("txtNova"))->setText(QStringLiteral("nova1"));
        form.findChild<QLineEdit *>(QStringLiteral("txtConfirma"))->setText(QStringLiteral("nova2"));
        gravar->click();  // different: both cleared, nothing written
        EXPECT_TRUE(form.findChild<QLineEdit *>(QStringLiteral("txtNova"))->text().isEmpty());
        form.findChild<QLineEdit *>(QStringLiteral("txtNova"))->setText(QStringLiteral("nova1"));
        form.findChild<QLineEdit *>(QStringLiteral("txtConfirma"))->setText(QStringLiteral("nova1"));
        gravar->click();
        EXPECT_EQ(form.result(), QDialog::Accepted);
        EXPECT_FALSE(session.cancelaGrava);
    }
    EXPECT_EQ(dir.sistema(QStringLiteral("SELECT senha FROM Usuarios WHERE codigo = 1")),
              EmbaralhaSenha(QStringLiteral("nova1")));
    EXPECT_EQ(dir.sistema(QStringLiteral("SELECT dsenha FROM Usuarios WHERE codigo = 1")),
              formatDate(QDate::currentDate(), QStringLiteral("dd/mm/yyyy")));
    {
        ScriptedPrompter p;
        frmTrocasen form;
        auto *senha = form.findChild<QLineEdit *>(QStringLiteral("txtsenha"));
        for (int n = 1; n <= 3; ++n) {
            senha->setText(QStringLiteral("errada"));
            form.txtsenha_LostFocus();
        }
        ASSERT_EQ(p.calls.size(), 1u);
        EXPECT_EQ(p.last().text, QStringLiteral("Superada três tentativas... pense e retorne depois !"));
        EXPECT_EQ(p.last().title, QStringLiteral("Erro Fatal..."));
        EXPECT_EQ(form.result(), QDialog::Rejected);
        EXPECT_FALSE(session.cancelaGrava);  // the caller shows today's date
    }
    {
        frmTrocasen form;
        form.findChild<QPushButton *>(QStringLiteral("cmdCancelar"))->click();
        EXPECT_TRUE(session.cancelaGrava);
    }
    session.valorPesq = QStringLiteral("99");
    frmTrocasen none;
    EXPECT_TRUE(descarregado(none));
}

TEST(PrinterChoice, StoredForTheUser)
{
    ShellDir dir;
    session.usuario = QStringLiteral("Joao");
    frmAtImpr form;
    EXPECT_TRUE(form.findChild<QRadioButton *>(QStringLiteral("optIm"))->isChecked());
    EXPECT_EQ(form.findChild<QLabel *>(QStringLiteral("lblUsuario"))->text(), QStringLiteral("Joao"));
    form.findChild<QRadioButton *>(QStringLiteral("optIl"))->setChecked(true);
    form.findChild<QPushButton *>(QStringLiteral("cmdGravar"))->click();
    EXPECT_EQ(session.impressora, QStringLiteral("L"));
    EXPECT_EQ(dir.sistema(QStringLiteral("SELECT impressora FROM Usuarios WHERE nome = 'Joao'")),
              QStringLiteral("L"));
}

// The warnings' Sim/Não road: test_frmblocos WarningAsksAndSavesOnSimOnly.
TEST(ErrorsDialog, FatalFindingsOnlyAcknowledged)
{
    LimpaErros();
    AnotaErro(kAlertaErro, QStringLiteral("Telefone sem DDD"));
    AnotaErro(kErroFatal, QStringLiteral("Todo Registro deve ter um código válido"));
    frmErros form;
    auto *grid = form.findChild<QTableWidget *>(QStringLiteral("tdbErros"));
    ASSERT_EQ(grid->rowCount(), 2);
    EXPECT_EQ(grid->item(1, 0)->text(), QStringLiteral("2"));
    EXPECT_EQ(grid->item(1, 1)->text(), QStringLiteral("Erro Fatal"));
    EXPECT_EQ(grid->horizontalHeaderItem(1)->text(), QStringLiteral("Tipo "));
    EXPECT_EQ(form.findChild<QLabel *>(QStringLiteral("lblMensagem"))->text(),
              QStringLiteral("Corrija os erros fatais, a gravação não pode ser realizada !"));
    EXPECT_TRUE(form.findChild<QPushButton *>(QStringLiteral("cmdSim"))->isHidden());
    EXPECT_TRUE(form.findChild<QPushButton *>(QStringLiteral("cmdNao"))->isHidden());
    session.cancelaGrava = false;
    form.findChild<QPushButton *>(QStringLiteral("cmdOk"))->click();
    EXPECT_TRUE(session.cancelaGrava);
    LimpaErros();
}
