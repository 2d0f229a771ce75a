#include "core/forms/frmSplash.h"

#include "core/version.h"

#include <QFrame>
#include <QLabel>
#include <QVBoxLayout>

frmSplash::frmSplash(QWidget *parent) : QWidget(parent, Qt::FramelessWindowHint)
{
    setWindowTitle(QStringLiteral("Habitarium"));
    setAttribute(Qt::WA_DeleteOnClose);

    auto *frame = new QFrame(this);
    frame->setObjectName(QStringLiteral("fraMain"));
    frame->setFrameShape(QFrame::Box);
    frame->setLineWidth(2);
    auto *lblProductName = new QLabel(QStringLiteral("Habitarium"), frame);
    lblProductName->setObjectName(QStringLiteral("lblProductName"));
    QFont f = lblProductName->font();
    f.setPointSizeF(f.pointSizeF() * 2.4);
    f.setBold(true);
    lblProductName->setFont(f);
    auto *lblCompanyProduct = new QLabel(QStringLiteral("Sistema de Gerenciamento de Condomínios"), frame);
    lblCompanyProduct->setObjectName(QStringLiteral("lblCompanyProduct"));
    auto *lblVersion = new QLabel(QStringLiteral("Versão ") + textoVersao(), frame);
    lblVersion->setObjectName(QStringLiteral("lblVersion"));
    lblVersion->setAlignment(Qt::AlignRight);

    auto *inner = new QVBoxLayout(frame);
    inner->setContentsMargins(32, 28, 32, 20);
    inner->addWidget(lblCompanyProduct);
    inner->addWidget(lblProductName);
    inner->addSpacing(24);
    inner->addWidget(lblVersion);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(frame);
    setMinimumSize(460, 220);
}

void frmSplash::keyPressEvent(QKeyEvent *) { close(); }
void frmSplash::mousePressEvent(QMouseEvent *) { close(); }
