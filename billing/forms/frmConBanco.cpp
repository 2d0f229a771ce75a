#include "billing/forms/frmConBanco.h"

#include "billing/forms/relatoriofin.h"
#include "billing/relatorios.h"
#include "core/conversions.h"
#include "core/prompter.h"
#include "core/session.h"
#include "core/widgets/keyboard.h"
#include "core/widgets/modal.h"
#include "reporting/imprime.h"
#include "ui_frmConBanco.h"

frmConBanco::frmConBanco(QWidget *parent) : FormImpressao(parent), ui_(std::make_unique<Ui::frmConBanco>())
{
    ui_->setupUi(this);
    ui_->optT->setChecked(true);
    liga();
}

frmConBanco::~frmConBanco() = default;

void frmConBanco::cmdImprimir_Click()
{
    QDate de, ate;
    if (!periodoDosCampos(ui_->tdbDe, ui_->tdbAte, de, ate))
        return;
    const QString banco = ui_->txtBanco->textoPuro();
    const QChar situacao = situacaoDoForm(*this);
    QString titu = tituloSituacao(situacao) + QStringLiteral(" - Banco ") + banco;
    if (de.isValid())
        titu += QStringLiteral(" - gerados de ") + ui_->tdbDe->textoMascarado() + QStringLiteral(" a ")
            + ui_->tdbAte->textoMascarado();
    Recordset rs;
    if (!ImprimeRelatorio(cn_, rs, sqlConBanco(de, ate, situacao, banco), colunasConBanco(), QStringLiteral("ConBanco.rpt"),
                          windowTitle(), {{QStringLiteral("Titu"), titu}}))
        MsgBox(QStringLiteral("Recibos Inexistentes para Parâmetros Selecionados"), vbExclamation, QStringLiteral("Erro"));
}
