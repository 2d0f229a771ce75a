// frmTTipAp's own statements: the coefficient with a decimal comma, the key padded.
#include "support/fixtures.h"
#include "support/scriptedprompter.h"

#include "core/widgets/grade.h"
#include "core/widgets/maskedit.h"
#include "core/widgets/numberfield.h"
#include "registers/forms/frmTTipAp.h"

#include <QLineEdit>
#include <QPushButton>
#include <gtest/gtest.h>

TEST(TiposDeApartamento, SavedWithTheCoefficientAndPaddedCode)
{
    TempProgramDir dir;
    dir.makeCondominium(1);
    dir.useInSession(1);
    ScriptedPrompter p;
    frmTTipAp form;
    auto *codigo = form.findChild<MaskEdit *>(QStringLiteral("mskCodigo"));
    auto *descri = form.findChild<QLineEdit *>(QStringLiteral("txtDescri"));
    auto *rateio = form.findChild<NumberField *>(QStringLiteral("txtRateio"));
    p.answer(vbYes, QStringLiteral("Código Não Cadastrado, Incluir Novo ?"));
    codigo->setText(QStringLiteral("7"));
    form.mskCodigo_LostFocus();
    ASSERT_EQ(form.modo(), 3);
    descri->setText(QStringLiteral("Cobertura"));
    rateio->setText(QStringLiteral("1,75"));
    form.findChild<QPushButton *>(QStringLiteral("cmdGravar"))->click();

    EXPECT_EQ(dir.ativo(QStringLiteral("SELECT codigo,descri,rateio FROM TpAp")), QStringLiteral("07|Cobertura|1,75"));

    // Loaded again, changed, and the grid follows.
    codigo->setText(QStringLiteral("07"));
    form.mskCodigo_LostFocus();
    EXPECT_EQ(form.modo(), 2);
    EXPECT_EQ(rateio->text(), QStringLiteral("1,7500"));
    rateio->setText(QStringLiteral("2"));
    form.findChild<QPushButton *>(QStringLiteral("cmdGravar"))->click();
    auto *grade = form.findChild<Grade *>(QStringLiteral("tdbGrade"));
    ASSERT_EQ(grade->linhas(), 1);
    EXPECT_EQ(grade->texto(0, 2), QStringLiteral("2"));
}
