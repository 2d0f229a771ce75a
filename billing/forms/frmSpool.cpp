#include "billing/forms/frmSpool.h"

#include "billing/forms/imprimerecibo.h"
#include "billing/impressaorecibo.h"
#include "core/conversions.h"
#include "core/session.h"
#include "core/val.h"
#include "core/widgets/keyboard.h"
#include "core/widgets/modal.h"
#include "ui_frmSpool.h"

#include <QRegularExpressionValidator>
#include <QTimer>

frmSpool::frmSpool(QWidget *parent) : QWidget(parent), ui_(std::make_unique<Ui::frmSpool>())
{
    ui_->setupUi(this);
    ui_->txtNvias->setValidator(new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9]*")), this));
    ui_->txtNvias->setText(QStringLiteral("1"));
    for (MaskEdit *m : {ui_->mskPRecibo, ui_->mskURecibo})
        aoPerderFoco(m, [m] {
            const QString numero = m->textoPuro();
            if (!numero.isEmpty())
                m->setText(ZeroEsq(numero, 6));
        });
    aoPerderFoco(ui_->txtNvias, [this] {
        if (ui_->txtNvias->text().isEmpty())
            QTimer::singleShot(0, ui_->txtNvias, [this] { ui_->txtNvias->setFocus(); });
    });
    connect(ui_->cmdImprimir, &QPushButton::clicked, this, &frmSpool::cmdImprimir_Click);
    connect(ui_->cmdCancelar, &QPushButton::clicked, this, [this] { fechaForm(*this); });
    aplicaTeclado(*this);

    cn_.ConnectionTimeout = 100;
    cn_.Open(session.conAtiva);
}

frmSpool::~frmSpool()
{
    if (cn_.State() == 1)
        cn_.Close();
}

// The copies, titles and message typed here do not reach the print: the
// receipts take the message and the copy titles of Parametros.
void frmSpool::cmdImprimir_Click()
{
    const QString primeiro = ui_->mskPRecibo->textoMascarado(), ultimo = ui_->mskURecibo->textoMascarado();
    auto vazio = [](const QString &n) {
        return n == QLatin1String("000000") || n == QLatin1String("______") || val(n) == 0;
    };
    if (vazio(primeiro) || vazio(ultimo)) {
        ui_->mskPRecibo->clear();
        ui_->mskURecibo->clear();
        ui_->mskPRecibo->setFocus();
        return;
    }
    mostraRecibos(cn_, sqlReciboFaixa(QString::number(qint64(val(primeiro))), QString::number(qint64(val(ultimo)))));
}
