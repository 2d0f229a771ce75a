#include "billing/forms/frmTEleitor.h"

#include "billing/cartas.h"
#include "billing/forms/relatoriofin.h"
#include "core/conversions.h"
#include "core/forms/abrepesquisa.h"
#include "core/prompter.h"
#include "core/session.h"
#include "core/widgets/keyboard.h"
#include "core/widgets/modal.h"
#include "reporting/imprime.h"
#include "ui_frmTEleitor.h"

frmTEleitor::frmTEleitor(QWidget *parent) : FormImpressao(parent), ui_(std::make_unique<Ui::frmTEleitor>())
{
    ui_->setupUi(this);
    connect(ui_->optTodos, &QRadioButton::toggled, this, [this](bool todos) {
        ui_->mskCodAp->setEnabled(!todos);
        ui_->cmdPesqAp->setEnabled(!todos);
    });
    ui_->optSel->setChecked(true);
    ligaCampoApto(cn_, ui_->mskCodAp, ui_->cmdPesqAp, ui_->lblNome);
    liga();
    const TituloEleitor t = leTitulo(cn_);
    ui_->txtTit0->setText(t.tit0);
    ui_->txtTit1->setText(t.tit1);
    ui_->tdbVcba->setText(t.vcba);
}

frmTEleitor::~frmTEleitor() = default;

void frmTEleitor::cmdImprimir_Click()
{
    const TituloEleitor t{ui_->txtTit0->text(), ui_->txtTit1->text(), ui_->tdbVcba->textoMascarado()};
    const bool umApto = ui_->optSel->isChecked();
    const QString codap = ui_->mskCodAp->textoPuro();
    if (const auto falta = confereTitulo(cn_, t, umApto, codap)) {
        MsgBox(*falta, vbCritical, QStringLiteral("Erro Fatal"));
        return;
    }
    // A unit in debt cannot vote: its open receipts are shown, and no card.
    const QDate vcba = dateFromText(t.vcba);
    if (umApto && !cn_.Execute(sqlDividaTitulo(codap, vcba)).eof()) {
        MsgBox(kAptoEmDebito, vbExclamation, QStringLiteral("Atenção"));
        session.sql = sqlListaDividaTitulo(codap, vcba);
        abrePesquisa(this, QStringLiteral("frmPesqRec"), QStringLiteral("Recibos em Aberto do Apartamento ") + codap,
                     sqlContaDividaTitulo(codap, vcba));
        return;
    }
    cn_.Execute(sqlGravaTitulo(t));
    Recordset rs;
    ImprimeRelatorio(cn_, rs, sqlTitulo(umApto, codap), colunasTitulo(), QStringLiteral("TEleitor.rpt"),
                     QStringLiteral("Título de Eleitor"),
                     {{QStringLiteral("Titu"), t.tit0}, {QStringLiteral("Titu1"), t.tit1}});
}
