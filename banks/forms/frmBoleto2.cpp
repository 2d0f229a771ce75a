#include "banks/forms/frmBoleto2.h"

#include "core/session.h"
#include "core/widgets/keyboard.h"
#include "core/widgets/modal.h"
#include "ui_frmBoleto2.h"

#include <QFontDatabase>

frmBoleto2::frmBoleto2(QWidget *parent) : QWidget(parent), ui_(std::make_unique<Ui::frmBoleto2>())
{
    ui_->setupUi(this);
    ui_->txtDemonstrativo->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    QStringList linhas;
    for (int n = 0; n < session.linhasDemonstrativo && n < int(session.demonstrativo.size()); ++n)
        linhas << session.demonstrativo[size_t(n)];
    ui_->txtDemonstrativo->setPlainText(linhas.join(u'\n'));
    ui_->lblLinhas->setText(QStringLiteral("%1 linhas").arg(linhas.size()));
    connect(ui_->cmdSair, &QPushButton::clicked, this, [this] { fechaForm(*this); });
    aplicaTeclado(*this);
}

frmBoleto2::~frmBoleto2() = default;
