// frmUsuarios: who may create, the rights dependency, the password change
// and the print.
#include "registerssupport.h"
#include "core/scramble.h"
#include "support/scriptedprompter.h"

#include "core/conversions.h"
#include "core/validators.h"
#include "core/datastore.h"
#include "core/forms/frmTrocasen.h"
#include "core/session.h"
#include "core/widgets/grade.h"
#include "core/widgets/maskedit.h"
#include "core/widgets/modal.h"
#include "registers/forms/frmUsuarios.h"
#include "reporting/imprime.h"

#include <QCheckBox>
#include <QDate>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

namespace {
struct Usuarios : RegistersDir {
    Usuarios() { insereUsuarios(*this); }
};

const QString hoje() { return formatDate(QDate::currentDate(), QStringLiteral("dd/mm/yyyy")); }
}

TEST(Usuarios, AdministratorCreatesUpdatesAndDeletes)
{
    Usuarios dir;
    ScriptedPrompter p;
    frmUsuarios form;
    auto *codigo = get<MaskEdit>(form, "mskCodigo");
    EXPECT_EQ(get<Grade>(form, "tdbGrade")->linhas(), 2);

    p.answer(vbYes, QStringLiteral("Código Não Cadastrado, Incluir Novo ?"));
    codigo->setText(QStringLiteral("3"));
    form.mskCodigo_LostFocus();
    ASSERT_EQ(form.modo(), 3);
    EXPECT_TRUE(get<QLineEdit>(form, "txtSenha")->isEnabled());
    get<QLineEdit>(form, "txtnome")->setText(QStringLiteral("Pedro"));
    get<QLineEdit>(form, "txtSenha")->setText(QStringLiteral("abc"));
    get<QRadioButton>(form, "OptIj")->setChecked(true);
    get<MaskEdit>(form, "mskCodcli")->setText(QStringLiteral("001"));
    get<QCheckBox>(form, "chkBdcon")->click();
    get<QCheckBox>(form, "chkBdalt")->setChecked(true);
    get<QPushButton>(form, "cmdGravar")->click();
    const QString registro = QStringLiteral("SELECT nome,senha,impressora,dsenha,empat,bdcon,bdadi,bdexc,bdalt,cfcon,cfadi,"
                                            "cfexc,cfalt,cfbai FROM Usuarios WHERE codigo = 3");
    const QString falsos = QStringLiteral("|Falso").repeated(5);
    EXPECT_EQ(dir.sistema(registro), QStringLiteral("Pedro|") + EmbaralhaSenha(QStringLiteral("abc")) + QStringLiteral("|J|")
                                         + hoje() + QStringLiteral("|1|Verdadeiro|Falso|Falso|Verdadeiro") + falsos);
    EXPECT_EQ(get<Grade>(form, "tdbGrade")->linhas(), 3);

    // An update leaves the password alone; the rights go as they stand.
    codigo->setText(QStringLiteral("3"));
    form.mskCodigo_LostFocus();
    ASSERT_EQ(form.modo(), 2);
    EXPECT_FALSE(get<QLineEdit>(form, "txtSenha")->isEnabled());
    EXPECT_TRUE(get<QPushButton>(form, "cmdApagar")->isEnabled());
    get<QRadioButton>(form, "optIn")->setChecked(true);
    get<QPushButton>(form, "cmdGravar")->click();
    EXPECT_EQ(dir.sistema(registro), QStringLiteral("Pedro|") + EmbaralhaSenha(QStringLiteral("abc")) + QStringLiteral("|S|")
                                         + hoje() + QStringLiteral("|1|Verdadeiro|Falso|Falso|Verdadeiro") + falsos);

    // The administrator deletes, after the question.
    codigo->setText(QStringLiteral("3"));
    form.mskCodigo_LostFocus();
    p.answer(vbYes, QStringLiteral("Deseja Realmente Excluir Este Usuário ?"));
    get<QPushButton>(form, "cmdApagar")->click();
    EXPECT_EQ(dir.sistema(registro), QStringLiteral("<nenhum>"));
    EXPECT_EQ(get<Grade>(form, "tdbGrade")->linhas(), 2);
}

TEST(Usuarios, OtherUsersOpenRecordsButNeitherCreateNorGiveRights)
{
    Usuarios dir;
    ScriptedPrompter p;
    session.usuario = QStringLiteral("Joao");
    frmUsuarios form;
    auto *codigo = get<MaskEdit>(form, "mskCodigo");

    codigo->setText(QStringLiteral("9"));
    form.mskCodigo_LostFocus();
    ASSERT_EQ(p.calls.size(), 1u);
    EXPECT_EQ(p.last().text, QStringLiteral("Somente o Administrador Esta Autorizado a Cadastrar Usuários !"));
    EXPECT_EQ(p.last().title, QStringLiteral("Atenção..."));
    EXPECT_EQ(form.modo(), 1);
    EXPECT_EQ(codigo->textoMascarado(), QStringLiteral("___"));

    // Another's record: name and printer may change, rights, delete and cancel are off.
    codigo->setText(QStringLiteral("1"));
    form.mskCodigo_LostFocus();
    ASSERT_EQ(form.modo(), 2);
    EXPECT_EQ(get<QLineEdit>(form, "txtnome")->text(), QStringLiteral("Maria"));
    EXPECT_EQ(get<QLabel>(form, "lblNome")->text(), QStringLiteral("Residencial Teste"));
    EXPECT_EQ(get<QLabel>(form, "lblDsenha")->text(), QStringLiteral("02/01/2008"));
    EXPECT_TRUE(get<QRadioButton>(form, "optIl")->isChecked());
    EXPECT_TRUE(get<QLineEdit>(form, "txtnome")->isEnabled());
    EXPECT_FALSE(get<QGroupBox>(form, "frmBdados")->isEnabled());
    EXPECT_FALSE(get<QGroupBox>(form, "frmCFinc")->isEnabled());
    EXPECT_FALSE(get<QPushButton>(form, "cmdApagar")->isEnabled());
    EXPECT_FALSE(get<QPushButton>(form, "cmdCancelar")->isEnabled());
    get<QLineEdit>(form, "txtnome")->setText(QStringLiteral("Maria Souza"));
    get<QPushButton>(form, "cmdGravar")->click();
    EXPECT_EQ(dir.sistema(QStringLiteral("SELECT nome,cfcon FROM Usuarios WHERE codigo = 1")), QStringLiteral("Maria Souza|Verdadeiro"));
}

TEST(Usuarios, ConsultationIsTheMasterOfEachGroup)
{
    Usuarios dir;
    ScriptedPrompter p;
    frmUsuarios form;
    mostra(form);
    get<MaskEdit>(form, "mskCodigo")->setText(QStringLiteral("1"));
    form.mskCodigo_LostFocus();
    auto *cfcon = get<QCheckBox>(form, "chkCfcon");
    const QList<QCheckBox *> dependentes{get<QCheckBox>(form, "chkCfadi"), get<QCheckBox>(form, "chkCfexc"),
                                         get<QCheckBox>(form, "chkCfalt"), get<QCheckBox>(form, "chkCfbai")};
    EXPECT_TRUE(dependentes[0]->isChecked());
    cfcon->click();  // unchecked: the four are unchecked and disabled
    for (QCheckBox *c : dependentes) {
        EXPECT_FALSE(c->isChecked()) << c->objectName().toStdString();
        EXPECT_FALSE(c->isEnabled()) << c->objectName().toStdString();
    }
    cfcon->click();
    for (QCheckBox *c : dependentes)
        EXPECT_TRUE(c->isEnabled());
    EXPECT_FALSE(dependentes[0]->isChecked());

    // A dependent box whose master is off can't keep the focus: the test runs again on focus.
    auto *bdcon = get<QCheckBox>(form, "chkBdcon");
    auto *bdadi = get<QCheckBox>(form, "chkBdadi");
    bdcon->setChecked(false);  // changed without a click
    bdadi->setFocus();
    EXPECT_FALSE(bdadi->isEnabled());
    EXPECT_FALSE(bdadi->isChecked());

    // Closing with the record in hand is refused in this form's words.
    EXPECT_FALSE(form.close());
    EXPECT_EQ(p.last().text, QStringLiteral("Você não pode abandonar uma operação em andamento, grave ou cancele antes..."));
    form.cmdCancelar_Click();
}

TEST(Usuarios, PasswordChangeAndPrint)
{
    Usuarios dir;
    ScriptedPrompter p;
    frmUsuarios form;
    get<MaskEdit>(form, "mskCodigo")->setText(QStringLiteral("1"));
    form.mskCodigo_LostFocus();
    {
        ModalScript modal;
        modal.on(QStringLiteral("frmTrocasen"), clickButton(QStringLiteral("cmdCancelar")));
        modal.on(QStringLiteral("frmTrocasen"), [](QDialog &d) {
            auto *antiga = d.findChild<QLineEdit *>(QStringLiteral("txtsenha"));
            antiga->setText(QStringLiteral("segredo"));
            static_cast<frmTrocasen &>(d).txtsenha_LostFocus();
            d.findChild<QLineEdit *>(QStringLiteral("txtNova"))->setText(QStringLiteral("nova"));
            d.findChild<QLineEdit *>(QStringLiteral("txtConfirma"))->setText(QStringLiteral("nova"));
            d.findChild<QPushButton *>(QStringLiteral("cmdGravar"))->click();
        });
        get<QPushButton>(form, "cmdTrocasen")->click();
        EXPECT_EQ(get<QLabel>(form, "lblDsenha")->text(), QStringLiteral("02/01/2008"));
        EXPECT_FALSE(session.cancelaGrava);
        get<QPushButton>(form, "cmdTrocasen")->click();
        EXPECT_EQ(get<QLabel>(form, "lblDsenha")->text(), hoje());
    }
    EXPECT_EQ(dir.sistema(QStringLiteral("SELECT senha FROM Usuarios WHERE codigo = 1")),
              EmbaralhaSenha(QStringLiteral("nova")));

    // Print: the record is saved first, then the user's card comes out.
    StatementLog log;
    get<QPushButton>(form, "cmdImprimir")->click();
    EXPECT_EQ(form.modo(), 1);
    EXPECT_TRUE(log.sent.contains(QStringLiteral(
        "SELECT Usuarios.*,Clientes.Nome FROM Usuarios INNER JOIN Clientes ON Usuarios.Empat = Clientes.codigo WHERE "
        "Usuarios.nome = 'Maria'")));
    auto report = lastReport();
    ASSERT_NE(report, nullptr);
    EXPECT_EQ(report->title, QStringLiteral("Cadastro de Usuário"));
    EXPECT_TRUE(report->log.isEmpty()) << report->log.join(u'\n').toStdString();

    // A user of condominium 0 has no row in Clientes: the join drops him, nothing prints.
    get<MaskEdit>(form, "mskCodigo")->setText(QStringLiteral("2"));
    form.mskCodigo_LostFocus();
    get<QPushButton>(form, "cmdImprimir")->click();
    EXPECT_EQ(lastReport(), report);
}

TEST(Usuarios, CancelClearsTheDateTheCondominiumAndThePrinter)
{
    Usuarios dir;
    ScriptedPrompter p;
    frmUsuarios form;
    get<MaskEdit>(form, "mskCodigo")->setText(QStringLiteral("1"));
    form.mskCodigo_LostFocus();
    ASSERT_EQ(form.modo(), 2);
    EXPECT_EQ(get<QLabel>(form, "lblDsenha")->text(), QStringLiteral("02/01/2008"));
    EXPECT_FALSE(get<QLabel>(form, "lblNome")->text().isEmpty());
    EXPECT_TRUE(get<QRadioButton>(form, "optIl")->isChecked());
    get<QPushButton>(form, "cmdCancelar")->click();
    EXPECT_TRUE(get<QLabel>(form, "lblDsenha")->text().isEmpty());
    EXPECT_TRUE(get<QLabel>(form, "lblNome")->text().isEmpty());
    EXPECT_EQ(get<MaskEdit>(form, "mskCodcli")->textoPuro(), QString());
    for (const char *o : {"optIm", "OptIj", "optIl", "optIn"})
        EXPECT_FALSE(get<QRadioButton>(form, o)->isChecked()) << o;
}

TEST(Usuarios, ANameWithAnApostropheIsRefused)
{
    Usuarios dir;
    ScriptedPrompter p;
    frmUsuarios form;
    get<MaskEdit>(form, "mskCodigo")->setText(QStringLiteral("1"));
    form.mskCodigo_LostFocus();
    get<QLineEdit>(form, "txtnome")->setText(QStringLiteral("Maria D'Ávila"));
    const ModalHandler antes = setModalHandler([](QDialog &d) {
        d.show();
        d.close();
    });
    form.cmdGravar_Click();
    setModalHandler(antes);
    EXPECT_EQ(session.listaErros[0][2], kNomeUsuarioInvalido);
    EXPECT_EQ(dir.sistema(QStringLiteral("SELECT nome FROM Usuarios WHERE codigo = 1")),
              QStringLiteral("Maria"));
    form.cmdCancelar_Click();
}
