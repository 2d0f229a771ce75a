// frmUsucli: the system file as the active one, the condominium's file made
// on save and deleted with its row.
#include "registerssupport.h"
#include "support/scriptedprompter.h"

#include "core/datastore.h"
#include "core/session.h"
#include "core/widgets/grade.h"
#include "core/widgets/maskedit.h"
#include "registers/forms/frmUsucli.h"

#include <QFile>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

TEST(Condominios, SaveMakesTheFileAndDeleteRemovesIt)
{
    RegistersDir dir;
    ScriptedPrompter p;
    frmUsucli form;
    // Every form opened from now on works on the system file.
    EXPECT_EQ(session.conAtiva, session.conSistema);
    auto *codigo = get<MaskEdit>(form, "txtCodigo");
    EXPECT_EQ(get<Grade>(form, "tdbGrade")->linhas(), 1);

    p.answer(vbYes, QStringLiteral("Código Não Cadastrado, Incluir Novo ?"));
    codigo->setText(QStringLiteral("12"));
    form.mskCodigo_LostFocus();
    ASSERT_EQ(form.modo(), 3);
    get<QLineEdit>(form, "txtnome")->setText(QStringLiteral("Edifício Doze"));
    get<QLineEdit>(form, "txtCidade")->setText(QStringLiteral("Santos"));
    get<MaskEdit>(form, "mskcgc")->setText(QStringLiteral("11222333000181"));
    p.answer(vbYes, QStringLiteral("Não existe banco de dados para este cliente, criar ? "));
    get<QPushButton>(form, "cmdGravar")->click();
    EXPECT_EQ(p.last().title, QStringLiteral("Criar Arquivo..."));
    EXPECT_TRUE(QFile::exists(dir.file(QStringLiteral("Con012.mdb"))));
    // Empty text fields go as a blank, an empty postal code as zeros.
    EXPECT_EQ(dir.sistema(QStringLiteral("SELECT nome,endereco,cidade,uf,cep,cgc,cpf,obs FROM Clientes WHERE codigo = 12")),
              QStringLiteral("Edifício Doze| |Santos| |00000-000|11.222.333/0001-81|___.___.___-__| "));
    EXPECT_EQ(get<Grade>(form, "tdbGrade")->linhas(), 2);

    // The same code again is refused at save.
    p.answer(vbYes, QStringLiteral("Incluir Novo"));
    codigo->setText(QStringLiteral("13"));
    form.mskCodigo_LostFocus();
    {
        ModalScript modal;
        modal.on(QStringLiteral("frmErros"), clickButton(QStringLiteral("cmdOk")));
        codigo->setText(QStringLiteral("12"));
        get<QPushButton>(form, "cmdGravar")->click();
    }
    EXPECT_EQ(session.listaErros[0][2], QStringLiteral("Código Já Cadastrado, Troque o Número !"));
    EXPECT_EQ(session.listaErros[1][2], QStringLiteral("O campo Empresa é obrigatório !"));
    form.cmdCancelar_Click();

    // Delete: the question names the file, No is the default; yes deletes file and row.
    codigo->setText(QStringLiteral("12"));
    form.mskCodigo_LostFocus();
    ASSERT_EQ(form.modo(), 2);
    EXPECT_EQ(get<MaskEdit>(form, "mskcgc")->textoMascarado(), QStringLiteral("11.222.333/0001-81"));
    p.answer(vbYes, QStringLiteral("cópia de segurança do arquivo Con012.mdb pois ele será apagado"));
    get<QPushButton>(form, "cmdApagar")->click();
    EXPECT_EQ(p.last().style, vbYesNo + vbCritical + vbDefaultButton2);
    EXPECT_FALSE(QFile::exists(dir.file(QStringLiteral("Con012.mdb"))));
    EXPECT_EQ(dir.sistema(QStringLiteral("SELECT nome FROM Clientes WHERE codigo = 12")), QStringLiteral("<nenhum>"));
    EXPECT_EQ(form.modo(), 1);
    EXPECT_EQ(get<Grade>(form, "tdbGrade")->linhas(), 1);
}

TEST(Condominios, NoFileWhenRefusedAndTheUpdate)
{
    RegistersDir dir;
    ScriptedPrompter p;
    frmUsucli form;
    auto *codigo = get<MaskEdit>(form, "txtCodigo");
    p.answer(vbYes, QStringLiteral("Incluir Novo"));
    codigo->setText(QStringLiteral("4"));
    form.mskCodigo_LostFocus();
    get<QLineEdit>(form, "txtnome")->setText(QStringLiteral("Quatro"));
    p.answer(vbNo, QStringLiteral("criar ?"));
    get<QPushButton>(form, "cmdGravar")->click();
    EXPECT_FALSE(QFile::exists(dir.file(QStringLiteral("Con004.mdb"))));

    // The existing condominium 1 keeps its file; an update is not asked about it.
    codigo->setText(QStringLiteral("1"));
    form.mskCodigo_LostFocus();
    get<QLineEdit>(form, "txtUf")->setText(QStringLiteral("RJ"));
    get<QPlainTextEdit>(form, "txtObs")->setPlainText(QStringLiteral("Portaria 24h"));
    get<QPushButton>(form, "cmdGravar")->click();
    EXPECT_EQ(dir.sistema(QStringLiteral("SELECT nome,endereco,uf,obs FROM Clientes WHERE codigo = 1")),
              QStringLiteral("Residencial Teste| |RJ|Portaria 24h"));

    // A wrong state code is refused on leaving the field.
    codigo->setText(QStringLiteral("1"));
    form.mskCodigo_LostFocus();
    get<QLineEdit>(form, "txtUf")->setText(QStringLiteral("XX"));
    saiDoCampo(form, "txtUf");
    EXPECT_EQ(p.last().text, QStringLiteral("Sigla do estado inválida, digite corretamente ou deixe o campo vazio"));
    EXPECT_TRUE(get<QLineEdit>(form, "txtUf")->text().isEmpty());
    EXPECT_FALSE(form.close());
    EXPECT_EQ(p.last().text, QStringLiteral("Você não pode abandonar uma operação em andamento, grave ou cancele antes..."));
    form.cmdCancelar_Click();
}
