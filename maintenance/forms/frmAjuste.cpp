#include "maintenance/forms/frmAjuste.h"

#include "core/prompter.h"
#include "core/session.h"
#include "core/val.h"
#include "core/widgets/keyboard.h"
#include "maintenance/ajuste.h"
#include "ui_frmAjuste.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QFile>

frmAjuste::frmAjuste(QWidget *parent) : QWidget(parent)
{
    Ui::frmAjuste ui;
    ui.setupUi(this);
    lbl1_ = ui.lbl1;
    lbl2_ = ui.lbl2;
    lblFeliz_ = ui.lblFeliz;
    pbrAjuste_ = ui.pbrAjuste;
    cmdAjuste_ = ui.cmdAjuste;
    QFont f = lblFeliz_->font();
    f.setPointSizeF(f.pointSizeF() * 2);
    f.setBold(true);
    lblFeliz_->setFont(f);
    lblFeliz_->installEventFilter(this);
    connect(cmdAjuste_, &QPushButton::clicked, this, &frmAjuste::cmdAjuste_Click);
    aplicaTeclado(*this);

    cmdAjuste_->setText(textoAjusteVersao());
    pbrAjuste_->setRange(0, 1);
    pbrAjuste_->setValue(0);
    if (!QFile::exists(session.sysPath + QStringLiteral("Ajustec.mdb"))) {
        MsgBox(QStringLiteral("Este ajuste já foi feito !"), vbExclamation, QStringLiteral("Atenção..."));
        jaFeito();
    } else {
        lbl1_->setText(QStringLiteral("FELIZ 2008 ! É um prazer tê-lo em nossa companhia... Ajuste de Virada de Ano, Abertura de 2008 !")
                       + QStringLiteral(" Mantenha suas cópias de segurança em dia... em caso de problemas ou dúvidas sobre como ")
                       + QStringLiteral(" fazê-la entre em contato com o nosso suporte, nunca deixe de proteger seus dados !!!"));
    }
}

void frmAjuste::jaFeito()
{
    cmdAjuste_->setEnabled(false);
    lbl1_->setText(QStringLiteral("Ajuste já Efetuado !"));
    lbl2_->clear();
}

void frmAjuste::cmdAjuste_Click()
{
    Ampulheta ampulheta;
    cmdAjuste_->setEnabled(false);
    QElapsedTimer pintura;
    pintura.start();
    const FimAjuste fim = AjustaVersao(session.sysPath, [&](const PassoAjuste &p) {
        if (!p.texto.isEmpty())
            lbl2_->setText(p.texto);
        pbrAjuste_->setRange(0, std::max(p.total, 1));
        pbrAjuste_->setValue(p.feitos);
        // The window paints a few times a second; clicks wait for the end.
        if (pintura.elapsed() > 40) {
            QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
            pintura.restart();
        }
    });
    switch (fim.situacao) {
    case FimAjuste::Feito:
        pbrAjuste_->setValue(pbrAjuste_->maximum());
        lbl2_->setText(QStringLiteral("Arquivos ajustados: ") + fim.ajustados.join(QStringLiteral(", ")));
        ponteiroNormal();
        MsgBox(QStringLiteral("Ajuste Finalizado !"), vbInformation, QStringLiteral("Atenção"));
        return;
    case FimAjuste::JaFeito:
        ponteiroNormal();
        MsgBox(QStringLiteral("Este ajuste já foi feito !"), vbExclamation, QStringLiteral("Atenção..."));
        jaFeito();
        return;
    case FimAjuste::EmUso:
        ponteiroNormal();
        MsgBox(QStringLiteral("O arquivo %1 está aberto em outra janela do sistema. Feche as outras janelas e faça o ajuste de novo.")
                   .arg(fim.arquivo),
               vbExclamation, QStringLiteral("Atenção..."));
        cmdAjuste_->setEnabled(true);
        return;
    case FimAjuste::Falhou:
        break;
    }
    lbl2_->setText(QStringLiteral("Ajuste interrompido em ") + fim.arquivo);
    ponteiroNormal();
    MsgBox(QStringLiteral("Erro número ") + QString::number(fim.numero) + QStringLiteral("\n\n") + fim.arquivo
               + QStringLiteral(": ") + fim.motivo,
           vbCritical, QStringLiteral("Erro Fatal"));
    // Stopped before the system file was carried over, the run can be made again.
    cmdAjuste_->setEnabled(QFile::exists(session.sysPath + QStringLiteral("Ajustec.mdb")));
}

void frmAjuste::lblFeliz_DblClick()
{
    const QString codigo = InputBox(
        QStringLiteral("Indique o Número do Condomínio que terá o e-mail vinculado ao código interno:"),
        QStringLiteral("Atenção"));
    if (val(codigo) <= 0)
        return;
    Ampulheta ampulheta;
    const bool feito = VinculaEmailCodigo(session.sysPath, codigo.trimmed());
    ponteiroNormal();
    if (!feito)
        MsgBox(QStringLiteral("Problemas com o condomínio escolhido, ajuste não realizado"), vbExclamation,
               QStringLiteral("Atenção"));
    else
        MsgBox(QStringLiteral("O e-mail dos proprietários passou ao código interno no condomínio ") + codigo.trimmed()
                   + QStringLiteral(" !"),
               vbInformation, QStringLiteral("Atenção"));
}

bool frmAjuste::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == lblFeliz_ && event->type() == QEvent::MouseButtonDblClick) {
        lblFeliz_DblClick();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}
