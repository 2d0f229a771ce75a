// The record-form protocol, driven on frmBlocos by control name.
#include "support/fixtures.h"
#include "support/scriptedprompter.h"
#include "registerssupport.h"

#include "core/datastore.h"
#include "core/session.h"
#include "core/anotaerro.h"
#include "core/widgets/grade.h"
#include "core/widgets/maskedit.h"
#include "core/widgets/modal.h"
#include "registers/forms/frmBlocos.h"

#include <QApplication>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>

namespace {
struct Blocos {
    TempProgramDir dir;
    Blocos()
    {
        dir.makeCondominium(1);
        dir.useInSession(1);
        dir.execAtivo(QStringLiteral("INSERT INTO Grupos(codgrupo,Grupo,Descri) VALUES('01',True,'Bloco A')"));
        dir.execAtivo(QStringLiteral("INSERT INTO Grupos(codgrupo,Grupo,Descri) VALUES('0101',False,'Bloco A - Entrada 1')"));
    }
    QString descri(const QString &codigo) { return dir.ativo(QStringLiteral("SELECT descri FROM Grupos WHERE codgrupo = '%1'").arg(codigo)); }
};

// A register with one warning-level rule, to drive the save that asks: a
// description in lower case is only a warning.
class BlocosComAlerta : public frmBlocos {
protected:
    void validaCampos() override
    {
        frmBlocos::validaCampos();
        const QString d = findChild<QLineEdit *>(QStringLiteral("txtDescri"))->text();
        if (!d.isEmpty() && d == d.toLower())
            AnotaErro(kAlertaErro, QStringLiteral("Descrição em letras minúsculas"));
    }
};
}

TEST(RecordForm, CodeFieldLoadsAsksAndKeepsAnEmptyCode)
{
    Blocos b;
    ScriptedPrompter p;
    frmBlocos form;
    form.show();
    form.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    auto *codigo = get<MaskEdit>(form, "mskCodigo");
    auto *descri = get<QLineEdit>(form, "txtDescri");
    auto *grade = get<Grade>(form, "tdbGrade");
    EXPECT_EQ(grade->linhas(), 2);
    EXPECT_EQ(grade->texto(1, 2), QStringLiteral("Subgrupo"));

    // Tab from an empty code: mode 1, and the focus comes back.
    codigo->setFocus();
    QTest::keyClick(codigo, Qt::Key_Tab);
    QApplication::processEvents();
    EXPECT_EQ(form.modo(), 1);
    EXPECT_TRUE(codigo->hasFocus());
    EXPECT_FALSE(descri->isEnabled());

    // An existing code loads its record: mode 2.
    QTest::keyClicks(codigo, QStringLiteral("01"));
    QTest::keyClick(codigo, Qt::Key_Tab);
    EXPECT_EQ(form.modo(), 2);
    EXPECT_EQ(descri->text(), QStringLiteral("Bloco A"));
    EXPECT_TRUE(descri->isEnabled());
    EXPECT_TRUE(get<QPushButton>(form, "cmdApagar")->isEnabled());

    // Closing with a record in hand is refused.
    EXPECT_FALSE(form.close());
    EXPECT_EQ(p.last().text, QStringLiteral("Você não pode abandonar uma operação em andamento, grave ou cancele !"));
    get<QPushButton>(form, "cmdCancelar")->click();
    EXPECT_EQ(form.modo(), 1);

    // An unknown code asks; no goes back to mode 1 (yes and the save: cadastro.hd).
    p.answer(vbNo, QStringLiteral("Código Não Cadastrado, Incluir Novo ?"));
    codigo->setText(QStringLiteral("02"));
    form.mskCodigo_LostFocus();
    EXPECT_EQ(form.modo(), 1);
    form.hide();
}

TEST(RecordForm, SaveFindingsDuplicatesDeleteAndGrid)
{
    Blocos b;
    ScriptedPrompter p;
    std::vector<QString> dialogs;
    bool answerSim = false;
    auto old = setModalHandler([&](QDialog &d) {
        dialogs.push_back(d.objectName());
        const char *button = answerSim ? "cmdSim" : "cmdOk";
        if (QPushButton *btn = d.findChild<QPushButton *>(QString::fromLatin1(button)); btn && !btn->isHidden())
            btn->click();
        else
            d.findChild<QPushButton *>(QStringLiteral("cmdNao"))->click();
    });
    frmBlocos form;
    mostra(form);
    auto *codigo = get<MaskEdit>(form, "mskCodigo");
    auto *descri = get<QLineEdit>(form, "txtDescri");
    auto *grade = get<Grade>(form, "tdbGrade");

    // A fatal finding stops the save; the fields stay for correction.
    p.answer(vbYes, QStringLiteral("Incluir Novo"));
    codigo->setText(QStringLiteral("03"));
    form.mskCodigo_LostFocus();
    get<QPushButton>(form, "cmdGravar")->click();
    ASSERT_EQ(dialogs.size(), 1u);
    EXPECT_EQ(dialogs[0], QStringLiteral("frmErros"));
    EXPECT_EQ(session.listaErros[0][2], QStringLiteral("O Campo Descrição é Obrigatório !"));
    EXPECT_EQ(form.modo(), 3);
    EXPECT_EQ(b.descri(QStringLiteral("03")), QStringLiteral("<nenhum>"));
    EXPECT_FALSE(session.cancelaGrava);

    // A code that exists, typed while the record is new, is refused at save.
    get<QPushButton>(form, "cmdCancelar")->click();
    p.answer(vbYes, QStringLiteral("Incluir Novo"));
    codigo->setText(QStringLiteral("04"));
    form.mskCodigo_LostFocus();
    codigo->setEnabled(true);
    codigo->setText(QStringLiteral("01"));
    descri->setText(QStringLiteral("Outro"));
    get<QPushButton>(form, "cmdGravar")->click();
    EXPECT_EQ(session.listaErros[0][2], QStringLiteral("Código Já Cadastrado, Troque o Número !"));
    EXPECT_EQ(b.descri(QStringLiteral("01")), QStringLiteral("Bloco A"));
    get<QPushButton>(form, "cmdCancelar")->click();

    // A grid click loads its record; an update changes the grid's row.
    QTest::mouseClick(grade->viewport(), Qt::LeftButton, {}, grade->visualRect(grade->model()->index(1, 1)).center());
    ASSERT_EQ(grade->linhaAtual(), 1);
    EXPECT_EQ(form.modo(), 2);
    EXPECT_EQ(descri->text(), QStringLiteral("Bloco A - Entrada 1"));
    descri->setText(QStringLiteral("Entrada Norte"));
    get<QPushButton>(form, "cmdGravar")->click();
    EXPECT_EQ(b.descri(QStringLiteral("0101")), QStringLiteral("Entrada Norte"));
    EXPECT_EQ(grade->texto(1, 1), QStringLiteral("Entrada Norte"));
    setModalHandler(old);
}

TEST(RecordForm, WarningAsksAndSavesOnSimOnly)
{
    Blocos b;
    ScriptedPrompter p;
    BlocosComAlerta form;
    auto *codigo = get<MaskEdit>(form, "mskCodigo");
    auto *descri = get<QLineEdit>(form, "txtDescri");
    auto *gravar = get<QPushButton>(form, "cmdGravar");

    p.answer(vbYes, QStringLiteral("Incluir Novo"));
    codigo->setText(QStringLiteral("05"));
    form.mskCodigo_LostFocus();
    descri->setText(QStringLiteral("bloco e"));
    {
        // "Não": nothing is written and the record stays in hand.
        ModalScript modal;
        modal.on(QStringLiteral("frmErros"), [](QDialog &d) {
            EXPECT_TRUE(d.findChild<QPushButton *>(QStringLiteral("cmdOk"))->isHidden());
            EXPECT_EQ(d.findChild<QLabel *>(QStringLiteral("lblMensagem"))->text(), QStringLiteral("Deseja gravar assim mesmo ?"));
            d.findChild<QPushButton *>(QStringLiteral("cmdNao"))->click();
        });
        gravar->click();
    }
    EXPECT_EQ(session.listaErros[0][1], kAlertaErro);
    EXPECT_EQ(b.descri(QStringLiteral("05")), QStringLiteral("<nenhum>"));
    EXPECT_EQ(form.modo(), 3);
    EXPECT_FALSE(session.cancelaGrava);
    {
        // "Sim": the save goes on.
        ModalScript modal;
        modal.on(QStringLiteral("frmErros"), clickButton(QStringLiteral("cmdSim")));
        gravar->click();
    }
    EXPECT_EQ(b.descri(QStringLiteral("05")), QStringLiteral("bloco e"));
    EXPECT_EQ(form.modo(), 1);
}

TEST(RecordForm, HeaderSortAndTheLastRowDeleted)
{
    Blocos b;
    ScriptedPrompter p;
    frmBlocos form;
    mostra(form);
    auto *codigo = get<MaskEdit>(form, "mskCodigo");
    auto *grade = get<Grade>(form, "tdbGrade");

    // A click on the header of the description sorts on it; another click reverses it.
    QHeaderView *header = grade->horizontalHeader();
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, QPoint(header->sectionViewportPosition(1) + 5, 5));
    const QString primeiro = grade->texto(0, 1);
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, QPoint(header->sectionViewportPosition(1) + 5, 5));
    EXPECT_NE(grade->texto(0, 1), primeiro);
    EXPECT_EQ(grade->linhas(), 2);

    // Deleting every row leaves mode 1 and an empty grid.
    for (const char *c : {"0101", "01"}) {
        codigo->setText(QString::fromLatin1(c));
        form.mskCodigo_LostFocus();
        p.answer(vbYes, QStringLiteral("Deseja Realmente Excluir Este Registro ?"));
        get<QPushButton>(form, "cmdApagar")->click();
    }
    EXPECT_EQ(b.descri(QStringLiteral("01")), QStringLiteral("<nenhum>"));
    EXPECT_EQ(grade->linhas(), 0);
    EXPECT_EQ(form.modo(), 1);
    EXPECT_TRUE(form.close());
}
