// frmCpj: the numeric key, dates written as null, and the print.
#include "registerssupport.h"
#include "support/scriptedprompter.h"

#include "core/datastore.h"
#include "core/session.h"
#include "core/widgets/datefield.h"
#include "core/widgets/grade.h"
#include "core/widgets/maskedit.h"
#include "registers/forms/frmCpj.h"
#include "reporting/imprime.h"

#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

TEST(PessoaJuridica, NumericKeyAndNullDates)
{
    RegistersDir dir;
    ScriptedPrompter p;
    dir.execAtivo(QStringLiteral("INSERT INTO Pjuridica(codigo,nome,tipo) VALUES(0,'(Nenhum)',0)"));
    frmCpj form;
    auto *codigo = get<MaskEdit>(form, "txtCodigo");
    auto *grade = get<Grade>(form, "tdbGrade");
    EXPECT_EQ(grade->linhas(), 0);  // the (Nenhum) rows are never offered

    p.answer(vbYes, QStringLiteral("Código Não Cadastrado, Incluir Novo ?"));
    codigo->setText(QStringLiteral("0012"));
    form.mskCodigo_LostFocus();
    ASSERT_EQ(form.modo(), 3);
    get<QLineEdit>(form, "txtNome")->setText(QStringLiteral("Imobiliária Central"));
    get<QRadioButton>(form, "optTipo0")->setChecked(true);
    get<MaskEdit>(form, "mskCep")->setText(QStringLiteral("13010-100"));
    get<DateField>(form, "mskNascto0")->setText(QStringLiteral("15/03/1970"));
    get<QPushButton>(form, "cmdGravar")->click();
    ASSERT_EQ(grade->linhas(), 1);
    EXPECT_EQ(grade->texto(0, 2), QStringLiteral("Imobiliária"));
    const QString registro = QStringLiteral("SELECT codigo,nome,cep,tipo,cnpj,nascto0,nascto1 FROM PJuridica WHERE codigo = 12");
    EXPECT_EQ(dir.ativo(registro), QStringLiteral("12|Imobiliária Central|13010-100|0|__.___.___/____-__|15/03/1970|"));

    // Loaded again: the date shows, and an emptied one goes as null.
    codigo->setText(QStringLiteral("12"));
    form.mskCodigo_LostFocus();
    ASSERT_EQ(form.modo(), 2);
    EXPECT_EQ(get<DateField>(form, "mskNascto0")->textoMascarado(), QStringLiteral("15/03/1970"));
    EXPECT_EQ(get<DateField>(form, "mskNascto1")->textoMascarado(), QStringLiteral("__/__/____"));
    EXPECT_TRUE(get<QRadioButton>(form, "optTipo0")->isChecked());
    get<DateField>(form, "mskNascto0")->clear();
    get<QPushButton>(form, "cmdGravar")->click();
    EXPECT_EQ(dir.ativo(registro), QStringLiteral("12|Imobiliária Central|13010-100|0|__.___.___/____-__||"));

    // A code that is not a number is refused at save, as is a code saved twice.
    p.answer(vbYes, QStringLiteral("Incluir Novo"));
    codigo->setText(QStringLiteral("13"));
    form.mskCodigo_LostFocus();
    codigo->setText(QStringLiteral("12"));
    {
        ModalScript modal;
        modal.on(QStringLiteral("frmErros"), clickButton(QStringLiteral("cmdOk")));
        get<QPushButton>(form, "cmdGravar")->click();
    }
    EXPECT_EQ(session.listaErros[0][2], QStringLiteral("Código Já Cadastrado, Troque o Número !"));
    EXPECT_EQ(session.listaErros[1][2], QStringLiteral("O campo Nome é obrigatório !"));
    form.cmdCancelar_Click();

    // Delete by the numeric key.
    codigo->setText(QStringLiteral("12"));
    form.mskCodigo_LostFocus();
    p.answer(vbYes, QStringLiteral("Deseja Realmente Excluir Este Registro ?"));
    get<QPushButton>(form, "cmdApagar")->click();
    EXPECT_EQ(dir.ativo(registro), QStringLiteral("<nenhum>"));
    EXPECT_EQ(grade->linhas(), 0);
}

TEST(PessoaJuridica, FieldRulesAndPrint)
{
    RegistersDir dir;
    ScriptedPrompter p;
    dir.execAtivo(QStringLiteral("INSERT INTO PJuridica(codigo,nome,tipo,homepage) VALUES(7,\"Zeladoria Sete\",'2',\"www.sete.com.br\")"));
    frmCpj form;
    get<MaskEdit>(form, "txtCodigo")->setText(QStringLiteral("7"));
    form.mskCodigo_LostFocus();
    ASSERT_EQ(form.modo(), 2);
    EXPECT_TRUE(get<QRadioButton>(form, "optTipo2")->isChecked());

    // The postal code of zeros is reset; a wrong CNPJ is told by its routine.
    auto *cep = get<MaskEdit>(form, "mskCep");
    cep->setText(QStringLiteral("00000-000"));
    saiDoCampo(form, "mskCep");
    EXPECT_EQ(cep->textoMascarado(), QStringLiteral("_____-___"));
    get<MaskEdit>(form, "mskCnpj")->setText(QStringLiteral("11222333000182"));
    saiDoCampo(form, "mskCnpj");
    EXPECT_EQ(p.last().text, QStringLiteral("CGC Inválido !"));

    StatementLog log;
    get<QPushButton>(form, "cmdImprimir")->click();
    EXPECT_TRUE(log.sent.contains(QStringLiteral("SELECT * FROM PJuridica WHERE codigo = 7")));
    auto report = lastReport();
    ASSERT_NE(report, nullptr);
    EXPECT_EQ(report->title, QStringLiteral("Cadastro de Pessoa Jurídica"));
    EXPECT_TRUE(report->log.isEmpty()) << report->log.join(u'\n').toStdString();
    EXPECT_EQ(form.modo(), 1);
}
