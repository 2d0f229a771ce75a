#include "billing/forms/frmRCondCobr.h"

#include "billing/forms/relatoriofin.h"
#include "billing/relatorios.h"
#include "core/prompter.h"
#include "core/session.h"
#include "core/widgets/keyboard.h"
#include "core/widgets/modal.h"
#include "reporting/imprime.h"
#include "ui_frmRCondCobr.h"

#include <QRegularExpressionValidator>

frmRCondCobr::frmRCondCobr(QWidget *parent) : FormImpressao(parent), ui_(std::make_unique<Ui::frmRCondCobr>())
{
    ui_->setupUi(this);
    ui_->optA->setChecked(true);
    ui_->txtLocal->setValidator(new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9]*")), this));
    liga();
}

frmRCondCobr::~frmRCondCobr() = default;

void frmRCondCobr::cmdImprimir_Click()
{
    const TiposTotal tipos = tiposDoForm(*this);
    if (!tipos.algum()) {
        MsgBox(kSemTipo, vbExclamation, QStringLiteral("Atenção..."));
        ui_->chkH->setFocus();
        return;
    }
    const QString local = ui_->txtLocal->text().trimmed();
    const QChar situacao = situacaoDoForm(*this);
    ReportFormulas formulas = formulasTipos(tipos);
    formulas << qMakePair(QStringLiteral("Titu"), tituloSituacao(situacao) + QStringLiteral(" - ") + nomesDosTipos(tipos))
             << qMakePair(QStringLiteral("LCob"), QStringLiteral("Local de Cobrança ") + local);
    Recordset rs;
    const bool impresso = ImprimeRelatorio(cn_, rs, sqlConCob(local, situacao), colunasConCob(), QStringLiteral("ConCob.rpt"),
                                           windowTitle(), formulas,
                                           [&tipos](const Recordset &r) { return linhaConCob(r, tipos); });
    if (!impresso) {
        MsgBox(QStringLiteral("Local de Cobrança Inexistente"), vbExclamation, QStringLiteral("Erro"));
        ui_->txtLocal->setFocus();
    }
}
