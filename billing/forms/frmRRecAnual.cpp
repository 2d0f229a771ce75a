#include "billing/forms/frmRRecAnual.h"

#include "billing/forms/relatoriofin.h"
#include "billing/relatorios.h"
#include "core/prompter.h"
#include "core/session.h"
#include "core/widgets/keyboard.h"
#include "core/widgets/modal.h"
#include "reporting/imprime.h"
#include "ui_frmRRecAnual.h"

#include <QDate>

frmRRecAnual::frmRRecAnual(QWidget *parent) : FormImpressao(parent), ui_(std::make_unique<Ui::frmRRecAnual>())
{
    ui_->setupUi(this);
    ui_->tdbAno->setFormato(DateField::Ano);
    ui_->tdbAno->setData(QDate(QDate::currentDate().year(), 1, 1));
    ui_->cmbOrdem->addItems(ordensAnual());
    ui_->optT->setChecked(true);
    liga();
}

frmRRecAnual::~frmRRecAnual() = default;

void frmRRecAnual::cmdImprimir_Click()
{
    const QDate ano = ui_->tdbAno->data();
    if (!ano.isValid()) {
        MsgBox(QStringLiteral("Informe o ano dos recibos !"), vbExclamation, QStringLiteral("Atenção..."));
        ui_->tdbAno->setFocus();
        return;
    }
    const QString texto = QString::number(ano.year());
    const QChar situacao = situacaoDoForm(*this);
    Recordset rs;
    if (!ImprimeRelatorio(cn_, rs, sqlRAnual(texto, situacao, ui_->cmbOrdem->currentText()), colunasRAnual(),
                          QStringLiteral("RAnual.rpt"), windowTitle(),
                          {{QStringLiteral("Titu"), tituloSituacao(situacao) + QStringLiteral(" em ") + texto
                                                        + QStringLiteral(" - ordem: ") + ui_->cmbOrdem->currentText()}}))
        MsgBox(QStringLiteral("Não há valores na condição especificada !"), vbExclamation, QStringLiteral("Erro"));
}
