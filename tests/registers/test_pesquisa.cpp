// The search dialogs: the connection each uses, the empty table, the search
// by name and by code, cancel, and the caller's handshake.
#include "registerssupport.h"
#include "support/scriptedprompter.h"

#include "core/datastore.h"
#include "core/forms/frmAtempr.h"
#include "core/session.h"
#include "core/widgets/grade.h"
#include "core/widgets/maskedit.h"
#include "registers/forms/frmCpj.h"
#include "registers/forms/pesquisa.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

namespace {
struct Firmas : RegistersDir {
    Firmas()
    {
        execAtivo(QStringLiteral("INSERT INTO PJuridica(codigo,nome,tipo) VALUES(12,\"Imobiliária Bela Vista\",'0')"));
        execAtivo(QStringLiteral("INSERT INTO PJuridica(codigo,nome,tipo) VALUES(3,\"Alfa Financeira\",'1')"));
        execAtivo(QStringLiteral("INSERT INTO PJuridica(codigo,nome,tipo) VALUES(250,\"Zeladoria Central\",'2')"));
    }
};

bool pesquisaFirmas()
{
    return abrePesquisa(nullptr, QStringLiteral("frmPesquisa"), QStringLiteral("Pesquisa de Pessoa Jurídica"),
                        QStringLiteral("PJuridica"));
}

ModalScript::Act procura(const QString &coluna, const QString &texto, const QString &botao)
{
    return [=](QDialog &d) {
        d.findChild<QComboBox *>(QStringLiteral("cmbColuna"))->setCurrentText(coluna);
        d.findChild<QLineEdit *>(QStringLiteral("txtPesq"))->setText(texto);
        d.findChild<QPushButton *>(QStringLiteral("cmdPesquisar"))->click();
        d.findChild<QPushButton *>(botao)->click();
    };
}
}

TEST(Pesquisa, EmptyTableCancelAndClose)
{
    RegistersDir dir;
    ScriptedPrompter p;
    session.valorPesq = QStringLiteral("7");
    // No row: the message, and the caller sees a cancel.
    EXPECT_FALSE(abrePesquisa(nullptr, QStringLiteral("frmPesquisa"), QStringLiteral("Pesquisa de Mão de Obra"),
                              QStringLiteral("Mobra")));
    ASSERT_EQ(p.calls.size(), 1u);
    EXPECT_EQ(p.calls[0].text, QStringLiteral("Atenção, não há nenhum registro cadastrado !"));
    EXPECT_EQ(p.calls[0].style & vbInformation, vbInformation);
    EXPECT_FALSE(session.cancelaGrava);  // the caller resets it
    EXPECT_EQ(session.valorPesq, QStringLiteral("7"));

    dir.execAtivo(QStringLiteral("INSERT INTO PJuridica(codigo,nome,tipo) VALUES(5,\"Uma\",'3')"));
    ModalScript modal;
    modal.on(QStringLiteral("frmPesquisa"), clickButton(QStringLiteral("cmdCancela")));
    modal.on(QStringLiteral("frmPesquisa"), [](QDialog &d) { d.reject(); });  // the window closed
    EXPECT_FALSE(pesquisaFirmas());
    EXPECT_FALSE(pesquisaFirmas());
    EXPECT_EQ(session.valorPesq, QStringLiteral("7"));
}

TEST(Pesquisa, ByNameAndByCodeOnTheActiveFile)
{
    Firmas dir;
    ScriptedPrompter p;
    ModalScript modal;
    modal.on(QStringLiteral("frmPesquisa"), [](QDialog &d) {
        EXPECT_EQ(d.windowTitle(), QStringLiteral("Pesquisa de Pessoa Jurídica"));
        auto *grade = d.findChild<Grade *>(QStringLiteral("tdbPesq"));
        EXPECT_EQ(grade->linhas(), 3);
        // Sorted on the name when it opens.
        EXPECT_EQ(d.findChild<QComboBox *>(QStringLiteral("cmbColuna"))->currentText(), QStringLiteral("Nome"));
        EXPECT_EQ(grade->texto(0, 1), QStringLiteral("Alfa Financeira"));
        procura(QStringLiteral("Nome"), QStringLiteral("imob"), QStringLiteral("cmdOk"))(d);
    });
    modal.on(QStringLiteral("frmPesquisa"), [](QDialog &d) {
        auto *grade = d.findChild<Grade *>(QStringLiteral("tdbPesq"));
        d.findChild<QComboBox *>(QStringLiteral("cmbColuna"))->setCurrentText(QStringLiteral("Código"));
        EXPECT_EQ(grade->texto(2, 0), QStringLiteral("250"));  // codes sort by number
        // A text found nowhere leaves the row where it was.
        grade->posiciona(0);
        d.findChild<QLineEdit *>(QStringLiteral("txtPesq"))->setText(QStringLiteral("251"));
        d.findChild<QPushButton *>(QStringLiteral("cmdPesquisar"))->click();
        EXPECT_EQ(grade->linhaAtual(), 0);
        procura(QStringLiteral("Código"), QStringLiteral("250"), QStringLiteral("cmdOk"))(d);
    });
    ASSERT_TRUE(pesquisaFirmas());
    EXPECT_EQ(session.valorPesq, QStringLiteral("12"));
    ASSERT_TRUE(pesquisaFirmas());
    EXPECT_EQ(session.valorPesq, QStringLiteral("250"));
}

TEST(Pesquisa, EnterSearchesThenAccepts)
{
    Firmas dir;
    ScriptedPrompter p;
    ModalScript modal;
    modal.on(QStringLiteral("frmPesquisa"), [](QDialog &d) {
        d.show();
        d.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&d));
        auto *txt = d.findChild<QLineEdit *>(QStringLiteral("txtPesq"));
        txt->setFocus();
        QTest::keyClicks(txt, QStringLiteral("zel"));
        QTest::keyClick(txt, Qt::Key_Return);
        EXPECT_TRUE(d.findChild<QPushButton *>(QStringLiteral("cmdOk"))->hasFocus());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        EXPECT_FALSE(d.isVisible());
    });
    ASSERT_TRUE(pesquisaFirmas());
    EXPECT_EQ(session.valorPesq, QStringLiteral("250"));
}

TEST(Pesquisa, SystemFileAndUnitsDialogs)
{
    RegistersDir dir;
    ScriptedPrompter p;
    dir.execSistema(QStringLiteral("INSERT INTO Clientes(codigo,nome) VALUES(7,\"Edifício Sete\")"));
    dir.execAtivo(QStringLiteral("INSERT INTO Aptos(codigo,codinterno,nome) VALUES('000101','A-11',\"Ana\")"));
    dir.execAtivo(QStringLiteral("INSERT INTO Aptos(codigo,codinterno,nome) VALUES('000102','A-12',\"Bruno\")"));
    ModalScript modal;
    modal.on(QStringLiteral("frmPesqGeral"), procura(QStringLiteral("Nome"), QStringLiteral("Edif"), QStringLiteral("cmdOk")));
    modal.on(QStringLiteral("frmPesqap"), [](QDialog &d) {
        EXPECT_EQ(d.findChild<QComboBox *>(QStringLiteral("cmbColuna"))->count(), 3);
        procura(QStringLiteral("Cód.Interno"), QStringLiteral("A-12"), QStringLiteral("cmdOk"))(d);
    });
    // Clientes is in the system file only: frmPesqGeral opens conSistema.
    ASSERT_TRUE(abrePesquisa(nullptr, QStringLiteral("frmPesqGeral"), QStringLiteral("Pesquisa de Condomínios"),
                             QStringLiteral("Clientes")));
    EXPECT_EQ(session.valorPesq, QStringLiteral("7"));
    ASSERT_TRUE(abrePesquisa(nullptr, QStringLiteral("frmPesqap"), QStringLiteral("Pesquisa de Apartamentos"),
                             QStringLiteral("Aptos")));
    EXPECT_EQ(session.valorPesq, QStringLiteral("000102"));
}

TEST(Pesquisa, CallersTypeTheCodeAndLoadIt)
{
    Firmas dir;
    ScriptedPrompter p;
    ModalScript modal;
    modal.on(QStringLiteral("frmPesquisa"), procura(QStringLiteral("Nome"), QStringLiteral("alfa"), QStringLiteral("cmdOk")));
    modal.on(QStringLiteral("frmPesqGeral"), procura(QStringLiteral("Nome"), QStringLiteral("resid"), QStringLiteral("cmdOk")));
    modal.on(QStringLiteral("frmPesquisa"), clickButton(QStringLiteral("cmdCancela")));

    // frmCpj: the code goes to the code field, and the record is loaded.
    frmCpj cpj;
    get<QPushButton>(cpj, "cmdPesquisar")->click();
    EXPECT_EQ(cpj.modo(), 2);
    EXPECT_EQ(get<QLineEdit>(cpj, "txtNome")->text(), QStringLiteral("Alfa Financeira"));
    cpj.cmdCancelar_Click();

    // frmAtempr's search of condominiums, on the system file.
    session.empat = 0;
    frmAtempr atempr;
    get<QPushButton>(atempr, "cmdPesqCli")->click();
    EXPECT_EQ(get<MaskEdit>(atempr, "mskCodcli")->textoMascarado(), QStringLiteral("001"));
    EXPECT_EQ(get<QLabel>(atempr, "lblNome")->text(), QStringLiteral("Residencial Teste"));

    // A cancel changes nothing in the caller.
    get<QPushButton>(cpj, "cmdPesquisar")->click();
    EXPECT_EQ(cpj.modo(), 1);
    EXPECT_FALSE(session.cancelaGrava);
}
