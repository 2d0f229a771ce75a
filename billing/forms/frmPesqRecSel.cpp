#include "billing/forms/frmPesqRecSel.h"

#include "core/session.h"
#include "core/widgets/keyboard.h"
#include "ui_frmPesqRecSel.h"

frmPesqRecSel::frmPesqRecSel(QWidget *parent) : ListaDeEscolha(parent), ui_(std::make_unique<Ui::frmPesqRecSel>())
{
    ui_->setupUi(this);
    liga(ui_->tdbPesq, ui_->txtPesquisa, ui_->cmdPesquisar, ui_->cmdOk, ui_->cmdCancelar,
         {QStringLiteral("Apto."), QStringLiteral("Nome"), QStringLiteral("Recibo"), QStringLiteral("Emissão"),
          QStringLiteral("Data")},
         1, QStringLiteral("Apartamento não encontrado !"));

    Ampulheta ampulheta;
    cn_.Open(session.conAtiva);
    Recordset rs = cn_.Execute(session.sql);
    if (rs.eof()) {
        vazia(QStringLiteral("Atenção, não há nenhum registro cadastrado !"));
        return;
    }
    for (; !rs.eof(); rs.moveNext())
        ui_->tdbPesq->modelo()->adiciona({rs[QStringLiteral("codigo")].text(), rs[QStringLiteral("nome")].text(),
                                          rs[QStringLiteral("nrecibo")].text(), rs[QStringLiteral("nemis")].text(),
                                          rs[QStringLiteral("demis")].text()});
    pronta();
}

frmPesqRecSel::~frmPesqRecSel() = default;
