#include "core/forms/frmTrocasen.h"

#include "core/conversions.h"
#include "core/prompter.h"
#include "core/scramble.h"
#include "core/session.h"
#include "core/widgets/keyboard.h"
#include "core/widgets/modal.h"

#include <QDate>
#include <QFocusEvent>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {
QLineEdit *campoSenha(QWidget *parent, const char *name)
{
    auto *edit = new QLineEdit(parent);
    edit->setObjectName(QString::fromLatin1(name));
    edit->setEchoMode(QLineEdit::Password);
    edit->setMinimumWidth(180);
    return edit;
}
}

frmTrocasen::frmTrocasen(QWidget *parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmTrocasen"));
    setWindowTitle(QStringLiteral("Alteração de Senha"));

    auto *anterior = new QGroupBox(QStringLiteral(" Senha Anterior "), this);
    txtsenha_ = campoSenha(anterior, "txtsenha");
    auto *la = new QFormLayout(anterior);
    la->addRow(QStringLiteral("Senha:"), txtsenha_);

    auto *nova = new QGroupBox(QStringLiteral(" Nova Senha / Confirmação "), this);
    txtNova_ = campoSenha(nova, "txtNova");
    txtConfirma_ = campoSenha(nova, "txtConfirma");
    auto *ln = new QFormLayout(nova);
    ln->addRow(QStringLiteral("Nova senha:"), txtNova_);
    ln->addRow(QStringLiteral("Confirmação:"), txtConfirma_);

    lblData_ = new QLabel(this);
    lblData_->setObjectName(QStringLiteral("lblData"));
    lblData_->setFrameShape(QFrame::StyledPanel);
    lblData_->setMinimumWidth(90);
    cmdGravar_ = new QPushButton(QStringLiteral("&Gravar"), this);
    cmdGravar_->setObjectName(QStringLiteral("cmdGravar"));
    cmdGravar_->setEnabled(false);
    cmdGravar_->setAutoDefault(false);
    cmdCancelar_ = new QPushButton(QStringLiteral("&Cancelar"), this);
    cmdCancelar_->setObjectName(QStringLiteral("cmdCancelar"));
    cmdCancelar_->setAutoDefault(false);

    auto *rodape = new QHBoxLayout;
    rodape->addWidget(new QLabel(QStringLiteral("Última Alteração"), this));
    rodape->addWidget(lblData_);
    rodape->addStretch();
    rodape->addWidget(cmdGravar_);
    rodape->addWidget(cmdCancelar_);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(anterior);
    layout->addWidget(nova);
    layout->addLayout(rodape);

    connect(cmdGravar_, &QPushButton::clicked, this, &frmTrocasen::cmdGravar_Click);
    connect(cmdCancelar_, &QPushButton::clicked, this, &frmTrocasen::cmdCancelar_Click);
    aplicaTeclado(*this);
    txtsenha_->installEventFilter(this);

    // Load.
    session.cancelaGrava = false;
    codigo_ = session.valorPesq;
    cn_.ConnectionTimeout = 100;
    cn_.Open(session.conSistema);
    Recordset rs = cn_.Execute(QStringLiteral("SELECT senha,dsenha FROM usuarios WHERE codigo = ") + codigo_);
    if (rs.eof()) {
        marcaDescarregado(*this);
        return;
    }
    senha_ = rs[QStringLiteral("senha")].text();
    const Field &dsenha = rs[QStringLiteral("dsenha")];
    lblData_->setText(dsenha.kind() == ColumnKind::Date ? formatDate(dsenha.toDate(), QStringLiteral("dd/mm/yyyy"))
                                                        : dsenha.text());
    session.j = 0;
}

frmTrocasen::~frmTrocasen()
{
    if (cn_.State() == 1)
        cn_.Close();
}

bool frmTrocasen::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == txtsenha_ && event->type() == QEvent::FocusOut) {
        const Qt::FocusReason reason = static_cast<QFocusEvent *>(event)->reason();
        if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason && cn_.State() == 1)
            txtsenha_LostFocus();
    }
    return QDialog::eventFilter(watched, event);
}

void frmTrocasen::txtsenha_LostFocus()
{
    if (EmbaralhaSenha(txtsenha_->text()) == senha_) {
        session.j = 0;
        cmdGravar_->setEnabled(true);
    } else if (txtsenha_->text().isEmpty()) {
        cmdCancelar_->setFocus();
    } else {
        ++session.j;
        if (session.j != 3) {
            cmdGravar_->setEnabled(false);
            txtsenha_->clear();
            txtsenha_->setFocus();
        } else {
            MsgBox(QStringLiteral("Superada três tentativas... pense e retorne depois !"), vbCritical,
                   QStringLiteral("Erro Fatal..."));
            done(QDialog::Rejected);
        }
    }
}

void frmTrocasen::cmdGravar_Click()
{
    if (txtNova_->text() != txtConfirma_->text() || txtNova_->text().isEmpty()) {
        txtNova_->clear();
        txtConfirma_->clear();
        txtNova_->setFocus();
        return;
    }
    session.sql = QStringLiteral("Update Usuarios Set senha = \"") + EmbaralhaSenha(txtNova_->text())
        + QStringLiteral("\",") + QStringLiteral("dsenha = '")
        + formatDate(QDate::currentDate(), QStringLiteral("dd/mm/yyyy")) + QStringLiteral("'")
        + QStringLiteral(" Where codigo = ") + codigo_;
    cn_.Execute(session.sql);
    done(QDialog::Accepted);
}

void frmTrocasen::cmdCancelar_Click()
{
    session.cancelaGrava = true;
    done(QDialog::Rejected);
}

void frmTrocasen::done(int result)
{
    if (cn_.State() == 1)
        cn_.Close();
    QDialog::done(result);
}
