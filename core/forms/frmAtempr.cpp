#include "core/forms/frmAtempr.h"

#include "core/forms/abrepesquisa.h"

#include "core/conversions.h"
#include "core/forms/formcatalog.h"
#include "core/prompter.h"
#include "core/session.h"
#include "core/startup.h"
#include "core/val.h"
#include "core/widgets/keyboard.h"
#include "core/widgets/maskedit.h"
#include "core/widgets/modal.h"

#include <QFocusEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <memory>

frmAtempr::frmAtempr(QWidget *parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmAtempr"));
    setWindowTitle(QStringLiteral("Ativação de Condomínio"));

    mskCodcli_ = new MaskEdit(this);
    mskCodcli_->setObjectName(QStringLiteral("mskCodcli"));
    mskCodcli_->setMascara(QStringLiteral("###"));
    mskCodcli_->setFixedWidth(mskCodcli_->fontMetrics().horizontalAdvance(QStringLiteral("0000")) + 16);
    lblNome_ = new QLabel(this);
    lblNome_->setObjectName(QStringLiteral("lblNome"));
    lblNome_->setFrameShape(QFrame::StyledPanel);
    lblNome_->setMinimumWidth(320);
    auto *cmdPesqCli = new QPushButton(QStringLiteral("&Pesquisar"), this);
    cmdPesqCli->setObjectName(QStringLiteral("cmdPesqCli"));
    auto *cmdGravar = new QPushButton(QStringLiteral("&Ativar"), this);
    cmdGravar->setObjectName(QStringLiteral("cmdGravar"));
    auto *cmdSair = new QPushButton(QStringLiteral("&Sair"), this);
    cmdSair->setObjectName(QStringLiteral("cmdSair"));
    for (QPushButton *b : {cmdPesqCli, cmdGravar, cmdSair})
        b->setAutoDefault(false);

    auto *campos = new QGridLayout;
    campos->addWidget(new QLabel(QStringLiteral("Condomínio:"), this), 0, 0);
    campos->addWidget(mskCodcli_, 0, 1);
    campos->addWidget(lblNome_, 0, 2);
    campos->addWidget(cmdPesqCli, 0, 3);
    campos->setColumnStretch(2, 1);
    auto *botoes = new QHBoxLayout;
    botoes->addStretch();
    botoes->addWidget(cmdGravar);
    botoes->addWidget(cmdSair);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(campos);
    layout->addSpacing(8);
    layout->addLayout(botoes);

    connect(cmdPesqCli, &QPushButton::clicked, this, &frmAtempr::cmdPesqCli_Click);
    connect(cmdGravar, &QPushButton::clicked, this, &frmAtempr::cmdGravar_Click);
    connect(cmdSair, &QPushButton::clicked, this, &frmAtempr::cmdSair_Click);
    aplicaTeclado(*this);
    mskCodcli_->installEventFilter(this);

    // Load, on the system file.
    cn_.ConnectionTimeout = 100;
    cn_.Open(session.conSistema);
    mskCodcli_->setText(ZeroEsq(QString::number(session.empat), 3));
    lblNome_->setText(nomeDoCondominio(QString::number(session.empat)));
}

frmAtempr::~frmAtempr()
{
    if (cn_.State() == 1)
        cn_.Close();
}

QString frmAtempr::nomeDoCondominio(const QString &codigo)
{
    Recordset rs = cn_.Execute(QStringLiteral("SELECT nome FROM clientes WHERE codigo = ") + codigo);
    return rs.eof() ? QString() : rs[QStringLiteral("nome")].text();
}

bool frmAtempr::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == mskCodcli_ && event->type() == QEvent::FocusOut) {
        const Qt::FocusReason reason = static_cast<QFocusEvent *>(event)->reason();
        if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason && cn_.State() == 1)
            mskCodcli_LostFocus();
    }
    return QDialog::eventFilter(watched, event);
}

void frmAtempr::mskCodcli_LostFocus()
{
    const QString codigo = QString::number(qint64(val(mskCodcli_->textoPuro())));
    Recordset rs = cn_.Execute(QStringLiteral("SELECT nome FROM clientes Where codigo = ") + codigo);
    lblNome_->setText(rs.eof() ? QString() : rs[QStringLiteral("nome")].text());
}

void frmAtempr::cmdPesqCli_Click()
{
    if (!abrePesquisa(this, QStringLiteral("frmPesqGeral"), QStringLiteral("Pesquisa de Condomínios"),
                      QStringLiteral("Clientes")))
        return;
    mskCodcli_->setText(ZeroEsq(session.valorPesq, 3));
    lblNome_->setText(nomeDoCondominio(QString::number(qint64(val(session.valorPesq)))));
}

void frmAtempr::cmdGravar_Click()
{
    const double codigo = val(mskCodcli_->textoPuro());
    if (!(codigo > 0)) {
        mskCodcli_->setFocus();
        return;
    }
    AtivaCondominio(cn_, int16_t(codigo), lblNome_->text());
    done(QDialog::Accepted);
}

void frmAtempr::cmdSair_Click() { done(QDialog::Rejected); }

void frmAtempr::done(int result)
{
    if (cn_.State() == 1)
        cn_.Close();
    QDialog::done(result);
}
