#include "accounting/forms/frmMov_Atualiza.h"

#include "accounting/atualiza.h"
#include "accounting/lancamentos.h"
#include "core/conversions.h"
#include "core/prompter.h"
#include "core/session.h"
#include "core/widgets/datefield.h"
#include "core/widgets/keyboard.h"
#include "core/widgets/modal.h"
#include "ui_frmMov_Atualiza.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

frmMov_Atualiza::frmMov_Atualiza(QWidget *parent) : QWidget(parent)
{
    Ui::frmMov_Atualiza ui;
    ui.setupUi(this);
    tdbAnomesfim_ = ui.tdbAnomesfim;
    lblProgresso_ = ui.lblProgresso;
    pbrProgressoG_ = ui.pbrProgressoG;
    pbrprogresso_ = ui.pbrprogresso;
    cmdAtualiza_ = ui.cmdAtualiza;
    cmdSair_ = ui.cmdSair;
    tdbAnomesfim_->setFormato(DateField::MesAno);
    pbrProgressoG_->hide();
    pbrprogresso_->hide();
    connect(cmdAtualiza_, &QPushButton::clicked, this, &frmMov_Atualiza::cmdAtualiza_Click);
    connect(cmdSair_, &QPushButton::clicked, this, [this] { fechaForm(*this); });
    aplicaTeclado(*this);

    cn_.ConnectionTimeout = 100;
    cn_.Open(session.conAtiva);
    Recordset rs = cn_.Execute(QStringLiteral("SELECT mes_movSaldfin FROM parametros where codigo = 1"));
    if (!rs.eof())
        tdbAnomesfim_->setData(rs[QStringLiteral("mes_movsaldfin")].toDate());
    alterado_ = false;
    connect(tdbAnomesfim_, &QLineEdit::textEdited, this, [this] { alterado_ = true; });
}

frmMov_Atualiza::~frmMov_Atualiza() { descarrega(); }

void frmMov_Atualiza::cmdAtualiza_Click()
{
    const QString texto = tdbAnomesfim_->textoMascarado();
    // A month not typed, or a year without its journal table, would stop the
    // run with the engine's error; the accountant is told instead.
    if (!tdbAnomesfim_->data().isValid()) {
        MsgBox(QStringLiteral("É obrigatório fixar um mês/ano válido para a atualização !"), vbExclamation,
               QStringLiteral("Atenção..."));
        tdbAnomesfim_->setFocus();
        return;
    }
    const QString tabela = tabelaDoAno(texto);
    if (!existeTabelaAno(cn_, tabela)) {
        MsgBox(semTabelaDoAno(texto.right(4)),
               vbExclamation, QStringLiteral("Atenção..."));
        tdbAnomesfim_->setFocus();
        return;
    }
    Ampulheta ampulheta;
    pbrProgressoG_->show();
    pbrprogresso_->show();
    pintura_.start();
    AtualizaSaldos(cn_, texto, [this](const Progress &p) {
        // The window shows the run as it goes: a new pass at once, the bars
        // every 40 ms. A bar is set only then, since each value that moves it
        // by a pixel repaints it there and then; the user's clicks wait for
        // the end of the run.
        if (lblProgresso_->text() == p.text && pintura_.elapsed() <= 40)
            return;
        pbrProgressoG_->setRange(p.overallMin, p.overallMax);
        pbrProgressoG_->setValue(p.overallValue);
        pbrprogresso_->setRange(p.min, p.max);
        pbrprogresso_->setValue(p.value);
        lblProgresso_->setText(p.text);
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
        pintura_.restart();
    });
    pbrprogresso_->setValue(pbrprogresso_->maximum());
    pbrProgressoG_->setValue(pbrProgressoG_->maximum());
    lblProgresso_->setText(kAtualizacaoFinalizada);
    cmdSair_->setFocus();
}

void frmMov_Atualiza::descarrega()
{
    if (cn_.State() != 1)
        return;
    marcaFechando(*this);
    GravaMesBase(cn_, tdbAnomesfim_->textoMascarado(), alterado_);
    cn_.Close();
}

void frmMov_Atualiza::closeEvent(QCloseEvent *event)
{
    descarrega();
    event->accept();
}
