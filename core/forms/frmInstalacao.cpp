#include "core/forms/frmInstalacao.h"

#include "core/conversions.h"
#include "core/installation.h"
#include "core/prompter.h"
#include "core/scramble.h"
#include "core/session.h"
#include "core/widgets/keyboard.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {
QLineEdit *campo(QWidget *parent, const char *name, int maxLength, bool senha = false)
{
    auto *edit = new QLineEdit(parent);
    edit->setObjectName(QString::fromLatin1(name));
    edit->setMaxLength(maxLength);
    if (senha)
        edit->setEchoMode(QLineEdit::Password);
    return edit;
}
}

frmInstalacao::frmInstalacao(QWidget *parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmInstalacao"));
    setWindowTitle(QStringLiteral("Primeira Instalação"));

    auto *texto = new QLabel(QStringLiteral("Esta é a primeira execução do Habitarium neste diretório.\n"
                                            "Informe o nome do cliente e o acesso do administrador."),
                             this);
    txtCliente_ = campo(this, "txtCliente", 40);
    txtLogin_ = campo(this, "txtLogin", 20);
    txtSenha_ = campo(this, "txtSenha", 20, true);
    txtConfirma_ = campo(this, "txtConfirma", 20, true);
    txtCliente_->setMinimumWidth(txtCliente_->fontMetrics().horizontalAdvance(QString(40, QLatin1Char('n'))));

    auto *cmdGravar = new QPushButton(QStringLiteral("&Gravar"), this);
    cmdGravar->setObjectName(QStringLiteral("cmdGravar"));
    auto *cmdCancelar = new QPushButton(QStringLiteral("&Cancelar"), this);
    cmdCancelar->setObjectName(QStringLiteral("cmdCancelar"));
    for (QPushButton *b : {cmdGravar, cmdCancelar})
        b->setAutoDefault(false);

    auto *campos = new QFormLayout;
    campos->addRow(QStringLiteral("Nome do cliente:"), txtCliente_);
    campos->addRow(QStringLiteral("Login do administrador:"), txtLogin_);
    campos->addRow(QStringLiteral("Senha:"), txtSenha_);
    campos->addRow(QStringLiteral("Confirmação da senha:"), txtConfirma_);
    auto *botoes = new QHBoxLayout;
    botoes->addStretch();
    botoes->addWidget(cmdGravar);
    botoes->addWidget(cmdCancelar);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(texto);
    layout->addLayout(campos);
    layout->addLayout(botoes);

    connect(cmdGravar, &QPushButton::clicked, this, &frmInstalacao::cmdGravar_Click);
    connect(cmdCancelar, &QPushButton::clicked, this, &frmInstalacao::cmdCancelar_Click);
    aplicaTeclado(*this);
}

void frmInstalacao::cmdGravar_Click()
{
    const QString atencao = QStringLiteral("Atenção...");
    if (txtCliente_->text().trimmed().isEmpty()) {
        MsgBox(QStringLiteral("O nome do cliente é obrigatório !"), vbExclamation, atencao);
        txtCliente_->setFocus();
        return;
    }
    if (txtLogin_->text().trimmed().isEmpty()) {
        MsgBox(QStringLiteral("O login do administrador é obrigatório !"), vbExclamation, atencao);
        txtLogin_->setFocus();
        return;
    }
    if (txtSenha_->text().isEmpty() || txtSenha_->text() != txtConfirma_->text()) {
        MsgBox(QStringLiteral("A senha e a confirmação não conferem !"), vbExclamation, atencao);
        txtSenha_->clear();
        txtConfirma_->clear();
        txtSenha_->setFocus();
        return;
    }
    InstallationSettings settings;
    settings.nomeCliente = txtCliente_->text().trimmed();
    settings.adminLogin = txtLogin_->text().trimmed();
    try {
        settings.adminSenha = EmbaralhaAdm(txtSenha_->text());
    } catch (const std::exception &) {  // the sum of the codes overflows its 16 bits
        MsgBox(QStringLiteral("A senha é longa demais, escolha uma senha mais curta !"), vbExclamation, atencao);
        txtSenha_->clear();
        txtConfirma_->clear();
        txtSenha_->setFocus();
        return;
    }
    if (!writeInstallationSettings(session.sysPath, settings)) {
        MsgBox(QStringLiteral("Não foi possível gravar ") + kSettingsFile + QStringLiteral(" no diretório do sistema !"),
               vbCritical, QStringLiteral("Erro Fatal"));
        EndProgram();
    }
    accept();
}

void frmInstalacao::cmdCancelar_Click() { EndProgram(); }
