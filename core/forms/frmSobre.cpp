#include "core/forms/frmSobre.h"

#include "core/version.h"
#include "core/widgets/keyboard.h"
#include "core/widgets/modal.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

frmSobre::frmSobre(QWidget *parent) : QWidget(parent)
{
    setWindowTitle(QStringLiteral("Sobre o Habitarium"));

    auto *lblTitle = new QLabel(QStringLiteral("Habitarium"), this);
    lblTitle->setObjectName(QStringLiteral("lblTitle"));
    QFont f = lblTitle->font();
    f.setPointSizeF(f.pointSizeF() * 1.8);
    f.setBold(true);
    lblTitle->setFont(f);
    auto *lblDescription = new QLabel(QStringLiteral("Sistema de Gerenciamento de Condomínios"), this);
    lblDescription->setObjectName(QStringLiteral("lblDescription"));
    auto *lblVersion = new QLabel(QStringLiteral("Versão ") + textoVersao(), this);
    lblVersion->setObjectName(QStringLiteral("lblVersion"));

    auto *txtSuporte = new QPlainTextEdit(this);
    txtSuporte->setObjectName(QStringLiteral("txtSuporte"));
    txtSuporte->setReadOnly(true);
    txtSuporte->setPlainText(QStringLiteral(
        "Suporte ao usuário\n"
        "Equipe Habitarium - atendimento em dias úteis, das 8h às 18h.\n"
        "Ao pedir ajuda, informe a versão acima, o condomínio ativo e a mensagem exibida.\n"
        "Antes de qualquer ajuste, faça uma cópia de segurança dos arquivos Con*.mdb."));
    txtSuporte->setLineWrapMode(QPlainTextEdit::NoWrap);
    txtSuporte->setFixedHeight(txtSuporte->fontMetrics().lineSpacing() * 5 + 12);
    txtSuporte->setMinimumWidth(txtSuporte->fontMetrics().horizontalAdvance(
                                    QStringLiteral("Ao pedir ajuda, informe a versão acima, o condomínio ativo e a mensagem exibida."))
                                + 24);

    auto *cmdOK = new QPushButton(QStringLiteral("Sair"), this);
    cmdOK->setObjectName(QStringLiteral("cmdOK"));
    connect(cmdOK, &QPushButton::clicked, this, [this] { fechaForm(*this); });

    auto *botoes = new QHBoxLayout;
    botoes->addStretch();
    botoes->addWidget(cmdOK);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(lblTitle);
    layout->addWidget(lblDescription);
    layout->addWidget(lblVersion);
    layout->addSpacing(6);
    layout->addWidget(txtSuporte);
    layout->addLayout(botoes);
    setMinimumWidth(480);
    aplicaTeclado(*this);
}
