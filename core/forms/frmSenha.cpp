#include "core/forms/frmSenha.h"

#include "core/conversions.h"
#include "core/prompter.h"
#include "core/session.h"
#include "core/startup.h"
#include "core/widgets/keyboard.h"

#include <QDate>
#include <QFocusEvent>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

frmSenha::frmSenha(QWidget *parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmSenha"));
    setWindowTitle(QStringLiteral("Habitarium - Controle de Acesso"));

    auto *titulo = new QLabel(QStringLiteral("Informe o usuário e a senha"), this);
    QFont f = titulo->font();
    f.setBold(true);
    titulo->setFont(f);
    txtlogin_ = new QLineEdit(this);
    txtlogin_->setObjectName(QStringLiteral("txtlogin"));
    txtsenha_ = new QLineEdit(this);
    txtsenha_->setObjectName(QStringLiteral("txtsenha"));
    txtsenha_->setEchoMode(QLineEdit::Password);
    lblDatasys_ = new QLabel(this);
    lblDatasys_->setObjectName(QStringLiteral("lblDatasys"));
    cmdOk_ = new QPushButton(QStringLiteral("&OK"), this);
    cmdOk_->setObjectName(QStringLiteral("cmdOk"));
    cmdOk_->setAutoDefault(false);
    cmdcancelar_ = new QPushButton(QStringLiteral("&Cancelar"), this);
    cmdcancelar_->setObjectName(QStringLiteral("cmdcancelar"));
    cmdcancelar_->setAutoDefault(false);

    auto *campos = new QFormLayout;
    campos->addRow(QStringLiteral("&Usuário:"), txtlogin_);
    campos->addRow(QStringLiteral("&Senha:"), txtsenha_);
    auto *botoes = new QHBoxLayout;
    botoes->addWidget(lblDatasys_);
    botoes->addStretch();
    botoes->addWidget(cmdOk_);
    botoes->addWidget(cmdcancelar_);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(titulo);
    layout->addLayout(campos);
    layout->addSpacing(8);
    layout->addLayout(botoes);
    txtlogin_->setMinimumWidth(220);
    setTabOrder(txtlogin_, txtsenha_);
    setTabOrder(txtsenha_, cmdOk_);
    setTabOrder(cmdOk_, cmdcancelar_);

    connect(cmdOk_, &QPushButton::clicked, this, &frmSenha::cmdOk_Click);
    connect(cmdcancelar_, &QPushButton::clicked, this, &frmSenha::cmdcancelar_Click);
    aplicaTeclado(*this);
    cmdOk_->installEventFilter(this);

    // Load.
    cn_.ConnectionTimeout = 100;
    cn_.Open(session.conSistema);
    lblDatasys_->setText(QStringLiteral("Data do Sistema: ") + formatDate(QDate::currentDate(), QStringLiteral("dd/mm/yyyy")));
    ponteiroNormal();
    txtlogin_->setFocus();
}

frmSenha::~frmSenha()
{
    if (cn_.State() == 1)
        cn_.Close();
}

bool frmSenha::eventFilter(QObject *watched, QEvent *event)
{
    // Enter in the password field moves the focus here, and that signs in.
    if (watched == cmdOk_ && event->type() == QEvent::FocusIn) {
        const Qt::FocusReason reason = static_cast<QFocusEvent *>(event)->reason();
        if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason)
            cmdOk_Click();
    }
    return QDialog::eventFilter(watched, event);
}

void frmSenha::cmdOk_Click()
{
    if (cn_.State() != 1)
        return;  // already unloaded: the focus and the click of one press
    switch (ConfereLogin(cn_, txtlogin_->text(), txtsenha_->text())) {
    case ResultadoLogin::Administrador:
        saiSeFechar_ = false;
        done(QDialog::Accepted);
        break;
    case ResultadoLogin::Usuario:
        session.confirmaSaida = false;
        saiSeFechar_ = false;
        done(QDialog::Accepted);
        break;
    case ResultadoLogin::CamposVazios:
        txtlogin_->clear();
        txtsenha_->clear();
        txtlogin_->setFocus();
        break;
    case ResultadoLogin::Recusado:
        MsgBox(QStringLiteral("Usuário não cadastrado ou senha não confere !"), vbCritical,
               QStringLiteral("Controle de Acesso"));
        ++tentativas_;
        txtlogin_->clear();
        txtsenha_->clear();
        txtlogin_->setFocus();
        break;
    }
    if (tentativas_ >= 3)
        EndProgram();
}

void frmSenha::cmdcancelar_Click() { EndProgram(); }

void frmSenha::done(int result)
{
    QDialog::done(result);
    if (cn_.State() == 1)
        cn_.Close();
    if (saiSeFechar_)
        EndProgram();
}
