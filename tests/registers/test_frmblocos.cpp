// The record-form protocol, driven on frmBlocos by control name.
#include "support/fixtures.h"
#include "support/scriptedprompter.h"

#include "core/datastore.h"
#include "core/session.h"
#include "core/widgets/maskedit.h"
#include "core/widgets/modal.h"
#include "registers/forms/frmBlocos.h"

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>
#include <gtest/gtest.h>

namespace {
struct Blocos {
    TempProgramDir dir;
    Blocos()
    {
        dir.makeCondominium(1);
        dir.useInSession(1);
        Connection cn;
        cn.Open(session.conAtiva);
        cn.Execute(QStringLiteral("INSERT INTO Grupos(codgrupo,Grupo,Descri) VALUES('01',True,'Bloco A')"));
        cn.Execute(QStringLiteral("INSERT INTO Grupos(codgrupo,Grupo,Descri) VALUES('0101',False,'Bloco A - Entrada 1')"));
        cn.Close();
    }
    QString descri(const QString &codigo)
    {
        Connection cn;
        cn.Open(session.conAtiva);
        Recordset rs = cn.Execute(QStringLiteral("SELECT descri FROM Grupos WHERE codgrupo = '") + codigo + u'\'');
        return rs.eof() ? QStringLiteral("<nenhum>") : rs[QStringLiteral("descri")].text();
    }
};

template <class T>
T *get(QWidget &form, const char *name)
{
    T *w = form.findChild<T *>(QString::fromLatin1(name));
    EXPECT_NE(w, nullptr) << name;
    return w;
}
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
    auto *grade = get<QTableWidget>(form, "tdbGrade");
    EXPECT_EQ(grade->rowCount(), 2);
    EXPECT_EQ(grade->item(1, 2)->text(), QStringLiteral("Subgrupo"));

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

    // An unknown code asks; no goes back to mode 1, yes to mode 3.
    p.answer(vbNo, QStringLiteral("Código Não Cadastrado, Incluir Novo ?"));
    codigo->setText(QStringLiteral("02"));
    form.mskCodigo_LostFocus();
    EXPECT_EQ(form.modo(), 1);
    p.answer(vbYes, QStringLiteral("Código Não Cadastrado, Incluir Novo ?"));
    codigo->setText(QStringLiteral("02"));
    form.mskCodigo_LostFocus();
    EXPECT_EQ(form.modo(), 3);
    EXPECT_FALSE(get<QPushButton>(form, "cmdApagar")->isEnabled());
    descri->setText(QStringLiteral("Bloco B"));
    get<QPushButton>(form, "cmdGravar")->click();
    EXPECT_EQ(b.descri(QStringLiteral("02")), QStringLiteral("Bloco B"));
    EXPECT_EQ(grade->rowCount(), 3);
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
    auto *codigo = get<MaskEdit>(form, "mskCodigo");
    auto *descri = get<QLineEdit>(form, "txtDescri");
    auto *grade = get<QTableWidget>(form, "tdbGrade");

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
    grade->setCurrentCell(1, 0);
    form.tdbGrade_RowChange(1);
    EXPECT_EQ(form.modo(), 2);
    EXPECT_EQ(descri->text(), QStringLiteral("Bloco A - Entrada 1"));
    descri->setText(QStringLiteral("Entrada Norte"));
    get<QPushButton>(form, "cmdGravar")->click();
    EXPECT_EQ(b.descri(QStringLiteral("0101")), QStringLiteral("Entrada Norte"));
    EXPECT_EQ(grade->item(1, 1)->text(), QStringLiteral("Entrada Norte"));

    // Delete removes the row from the table and the grid.
    form.tdbGrade_RowChange(0);
    p.answer(vbYes, QStringLiteral("Deseja Realmente Excluir Este Registro ?"));
    get<QPushButton>(form, "cmdApagar")->click();
    EXPECT_EQ(b.descri(QStringLiteral("01")), QStringLiteral("<nenhum>"));
    EXPECT_EQ(grade->rowCount(), 1);
    EXPECT_EQ(form.modo(), 1);
    setModalHandler(old);
}
