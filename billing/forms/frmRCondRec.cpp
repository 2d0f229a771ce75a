#include "billing/forms/frmRCondRec.h"

#include "billing/forms/relatoriofin.h"
#include "billing/relatorios.h"
#include "core/prompter.h"
#include "core/session.h"
#include "core/widgets/keyboard.h"
#include "core/widgets/modal.h"
#include "reporting/printjob.h"
#include "ui_frmRCondRec.h"

static const QString kTitulo = QStringLiteral("Condomínio a Receber por Entrada");

frmRCondRec::frmRCondRec(QWidget *parent) : FormImpressao(parent), ui_(std::make_unique<Ui::frmRCondRec>())
{
    ui_->setupUi(this);
    // Conarec.rpt reads the work table from the file of condominium 1: in any
    // other condominium the form closes at once, without a word.
    if (!arquivoDoConarec(session.arqAtivo)) {
        ponteiroNormal();
        marcaDescarregado(*this);
        return;
    }
    ui_->optA->setChecked(true);
    auto apos = [this] {
        const bool sim = ui_->optR->isChecked();
        ui_->tdbRecto->setEnabled(sim);
        ui_->chkAbertos->setEnabled(sim);
    };
    for (QRadioButton *o : {ui_->optA, ui_->optB, ui_->optR})
        connect(o, &QRadioButton::toggled, this, apos);
    apos();
    liga();
}

frmRCondRec::~frmRCondRec() = default;

void frmRCondRec::cmdImprimir_Click()
{
    FiltroConarec f;
    f.tipos = tiposDoForm(*this);
    if (!f.tipos.algum()) {
        MsgBox(kSemTipo, vbExclamation, QStringLiteral("Atenção..."));
        ui_->chkH->setFocus();
        return;
    }
    if (!periodoDosCampos(ui_->tdbDe, ui_->tdbAte, f.de, f.ate))
        return;
    if (ui_->optB->isChecked())
        f.situacao = SituacaoConarec::Baixados;
    if (ui_->optR->isChecked()) {
        f.situacao = SituacaoConarec::BaixadosApos;
        f.baixaApos = ui_->tdbRecto->data();
        f.comAbertos = ui_->chkAbertos->isChecked();
        if (!f.baixaApos.isValid()) {
            MsgBox(QStringLiteral("Informe a data de recebimento !"), vbExclamation, QStringLiteral("Atenção..."));
            ui_->tdbRecto->setFocus();
            return;
        }
    }
    long unidades = 0;
    {
        Ampulheta ampulheta;
        unidades = encheConarec(cn_, f);
    }
    if (unidades == 0) {
        MsgBox(QStringLiteral("Não há valores na condição especificada !"), vbExclamation, QStringLiteral("Erro"));
        return;
    }
    // The engine's print job, step by step, each with its own fault.
    PrintJob job;
    if (!job.open(QStringLiteral("Conarec.rpt"))) {
        MsgBox(QStringLiteral("Arquivo Rpt não encontrado!"), vbCritical, QStringLiteral("Erro"));
        return;
    }
    job.setFormula(QStringLiteral("Peri"), periodoConarec(f));
    job.setFormula(QStringLiteral("Titu"), tituloConarec(f));
    job.setFormula(QStringLiteral("uEmpat"), QString::number(session.empat));
    job.setFormula(QStringLiteral("uNempat"), session.nomeEmp);
    job.setFormula(QStringLiteral("gClient"), session.nomeCliente);
    if (!job.setWindowOptions(true, true)) {
        MsgBox(QStringLiteral("Erro nas opções da janela !"), vbCritical, QStringLiteral("Erro"));
        return;
    }
    if (!job.outputToWindow(kTitulo)) {
        MsgBox(QStringLiteral("Definição de Janela com Erro !"), vbCritical, QStringLiteral("Erro"));
        return;
    }
    Ampulheta ampulheta;
    if (!job.start()) {
        ponteiroNormal();
        MsgBox(QStringLiteral("Erro ao Iniciar a Impressão!"), vbCritical, QStringLiteral("Erro"));
    }
    job.close();
}
