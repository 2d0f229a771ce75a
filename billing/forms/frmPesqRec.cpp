#include "billing/forms/frmPesqRec.h"

#include "core/conversions.h"
#include "core/session.h"
#include "core/widgets/keyboard.h"
#include "ui_frmPesqRec.h"

frmPesqRec::frmPesqRec(QWidget *parent) : ListaDeEscolha(parent), ui_(std::make_unique<Ui::frmPesqRec>())
{
    ui_->setupUi(this);
    liga(ui_->tdbPesq, ui_->txtPesquisa, ui_->cmdPesquisar, ui_->cmdOk, ui_->cmdCancelar,
         {QStringLiteral("Recibo"), QStringLiteral("Emissão"), QStringLiteral("Vencto"), QStringLiteral("Recbto"),
          QStringLiteral("Apto."), QStringLiteral("LC"), QStringLiteral("Nr.Banco"), QStringLiteral("Proprietário"),
          QStringLiteral("Valor")},
         7, QStringLiteral("Recibo não encontrado !"));

    Ampulheta ampulheta;
    cn_.Open(session.conAtiva);
    Recordset conta = cn_.Execute(session.tabPesq);
    if (conta.eof() || conta[QStringLiteral("I")].toInt() == 0) {
        vazia(QStringLiteral("Atenção, não existem recibos cadastrado em aberto !"));
        return;
    }
    Money total;
    Recordset rs = cn_.Execute(session.sql);
    // The list of a unit's debts (frmTEleitor) brings no bank number.
    const bool comNrbco = rs.columnNames().contains(QStringLiteral("nrbco"), Qt::CaseInsensitive);
    while (!rs.eof()) {
        const QString codap = rs[QStringLiteral("codap")].text();
        Recordset ap = cn_.Execute(QStringLiteral("SELECT nome FROM aptos WHERE codigo = '") + codap + QStringLiteral("'"));
        const Money valor = rs[QStringLiteral("vtotal")].toMoney();
        total += valor;
        ui_->tdbPesq->modelo()->adiciona({rs[QStringLiteral("codigo")].text(), rs[QStringLiteral("demis")].text(),
                     rs[QStringLiteral("dvencto")].text(), rs[QStringLiteral("drecbto")].text(), codap,
                     rs[QStringLiteral("tipcob")].text(), comNrbco ? rs[QStringLiteral("nrbco")].text() : QString(),
                     ap.eof() ? QString() : ap[QStringLiteral("nome")].text(),
                     formatMoney(valor, QStringLiteral("R$ ######,##0.00"))});
        rs.moveNext();
    }
    ui_->lblTotal->setText(formatMoney(total, QStringLiteral("R$ ######,##0.00")));
    pronta();
}

frmPesqRec::~frmPesqRec() = default;
