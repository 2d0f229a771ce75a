#include "billing/forms/frmFiltro.h"

#include "core/prompter.h"
#include "core/session.h"
#include "core/widgets/keyboard.h"
#include "ui_frmFiltro.h"

frmFiltro::frmFiltro(QWidget *parent) : QDialog(parent), ui_(std::make_unique<Ui::frmFiltro>())
{
    ui_->setupUi(this);
    condicoes_ = std::make_unique<CondicoesFiltro>(this);
    connect(ui_->cmdGravar, &QPushButton::clicked, this, &frmFiltro::cmdGravar_Click);
    connect(ui_->cmdSair, &QPushButton::clicked, this, &QDialog::reject);
    aplicaTeclado(*this);

    cn_.ConnectionTimeout = 100;
    cn_.Open(session.conAtiva);
    condicoes_->mostra(leFiltro(cn_));
}

frmFiltro::~frmFiltro()
{
    if (cn_.State() == 1)
        cn_.Close();
}

// Saves the filter and its statements; the dialog closes.
void frmFiltro::cmdGravar_Click()
{
    const Filtro f = condicoes_->filtro();
    if (const auto falta = confereFiltro(f)) {
        MsgBox(*falta, vbExclamation, QStringLiteral("Atenção..."));
        return;
    }
    gravaFiltro(cn_, f);
    accept();
}
