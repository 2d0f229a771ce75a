#include "billing/forms/frmRecBaixa.h"

#include "billing/filtro.h"
#include "billing/forms/frmFiltro.h"
#include "billing/forms/imprimerecibo.h"
#include "billing/impressaorecibo.h"
#include "core/anotaerro.h"
#include "core/conversions.h"
#include "core/forms/abrepesquisa.h"
#include "core/forms/frmErros.h"
#include "core/prompter.h"
#include "core/session.h"
#include "core/val.h"
#include "core/widgets/keyboard.h"
#include "core/widgets/modal.h"
#include "ui_frmRecBaixa.h"

#include <QApplication>
#include <QCloseEvent>
#include <QRegularExpressionValidator>
#include <QTimer>

static const QString kAtencao = QStringLiteral("Atenção...");

frmRecBaixa::frmRecBaixa(QWidget *parent) : QWidget(parent), ui_(std::make_unique<Ui::frmRecBaixa>())
{
    ui_->setupUi(this);
    ui_->txtTcob->setValidator(new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9,]*")), this));
    ui_->tdgItens->setConexao(&cn_);
    connect(ui_->tdgItens, &GradeItens::totalMudou, this, [this](Money total) {
        ui_->lblTotal->setText(formatMoney(total, QStringLiteral("R$ ###,###,##0.00")));
    });
    connect(ui_->tdgItens, &GradeItens::itensTerminados, this, [this] { ui_->cmdGravar->setFocus(); });
    connect(ui_->cmdPesquisar, &QPushButton::clicked, this, &frmRecBaixa::cmdPesquisar_Click);
    connect(ui_->cmdFiltro, &QPushButton::clicked, this, &frmRecBaixa::cmdFiltro_Click);
    connect(ui_->cmdBaixar, &QPushButton::clicked, this, &frmRecBaixa::cmdBaixar_Click);
    connect(ui_->cmdGravar, &QPushButton::clicked, this, &frmRecBaixa::cmdGravar_Click);
    connect(ui_->cmdApagar, &QPushButton::clicked, this, &frmRecBaixa::cmdApagar_Click);
    connect(ui_->cmdImprimir, &QPushButton::clicked, this, &frmRecBaixa::cmdImprimir_Click);
    connect(ui_->cmdCancelar, &QPushButton::clicked, this, &frmRecBaixa::cmdCancelar_Click);
    connect(ui_->cmdLgrid, &QPushButton::clicked, this, &frmRecBaixa::cmdLgrid_Click);
    connect(ui_->cmdSair, &QPushButton::clicked, this, [this] { fechaForm(*this); });
    aoPerderFoco(ui_->txtCodRec, [this] { txtCodRec_LostFocus(); });
    aoPerderFoco(ui_->tdbRecto, [this] { tdbRecto_LostFocus(); });
    aoPerderFoco(ui_->tdbVencto, [this] {
        if (modo_ == 2 && ui_->tdbVencto->vazio())
            QTimer::singleShot(0, ui_->tdbVencto, [this] { ui_->tdbVencto->setFocus(); });
    });
    aplicaTeclado(*this);

    cn_.ConnectionTimeout = 100;
    cn_.Open(session.conAtiva);
    limpa();
    trocaModo(1);
}

frmRecBaixa::~frmRecBaixa()
{
    if (cn_.State() == 1)
        cn_.Close();
}

void frmRecBaixa::trocaModo(int modo)
{
    modo_ = modo;
    const bool dois = modo == 2;
    for (QWidget *w : std::initializer_list<QWidget *>{
             ui_->cmdGravar, ui_->cmdApagar, ui_->cmdImprimir, ui_->cmdCancelar, ui_->cmdBaixar, ui_->cmdLgrid,
             ui_->tdgItens, ui_->tdbDemis, ui_->tdbVencto, ui_->tdbRecto, ui_->txtTcob, ui_->txtTipbolbco,
             ui_->txtNrBco, ui_->txtObs1, ui_->txtObs2})
        w->setEnabled(dois);
    ui_->cmdPesquisar->setEnabled(!dois);
    ui_->cmdSair->setEnabled(!dois);
    ui_->txtCodRec->setEnabled(!dois);
}

void frmRecBaixa::limpa()
{
    ui_->txtCodRec->clear();
    for (QLabel *l : {ui_->lblNumrec, ui_->lblNEmis, ui_->lblCodEmpr, ui_->lblCliente})
        l->clear();
    for (DateField *d : {ui_->tdbDemis, ui_->tdbVencto, ui_->tdbRecto})
        d->limpa();
    for (QLineEdit *t : {ui_->txtTcob, ui_->txtTipbolbco, ui_->txtNrBco, ui_->txtObs1, ui_->txtObs2})
        t->clear();
    ui_->tdgItens->limpa();
    rectoOriginal_ = kEmptyDate;
    rectoPerguntado_.clear();
}

bool frmRecBaixa::mostra(const QString &numero)
{
    ReciboEditado r;
    if (!leReciboEditado(cn_, numero, &r))
        return false;
    ui_->txtCodRec->setText(r.codigo);
    ui_->lblNumrec->setText(r.codigo);
    ui_->lblNEmis->setText(r.nemis);
    ui_->lblCodEmpr->setText(r.codap);
    Recordset ap = cn_.Execute(QStringLiteral("SELECT nome FROM Aptos WHERE codigo = '") + r.codap + QStringLiteral("'"));
    ui_->lblCliente->setText(ap.eof() ? QString() : ap[QStringLiteral("nome")].text());
    ui_->tdbDemis->setData(dateFromText(r.demis));
    ui_->tdbVencto->setData(dateFromText(r.dvencto));
    ui_->tdbRecto->setData(dateFromText(r.drecbto));
    ui_->txtTcob->setText(r.tipcob);
    ui_->txtTipbolbco->setText(r.tipbolbco);
    ui_->txtNrBco->setText(r.nrbco);
    ui_->txtObs1->setText(r.obs1);
    ui_->txtObs2->setText(r.obs2);
    ui_->tdgItens->mostra(r.linhas);
    rectoOriginal_ = ui_->tdbRecto->textoMascarado();
    rectoPerguntado_.clear();
    trocaModo(2);
    return true;
}

ReciboEditado frmRecBaixa::editado() const
{
    ReciboEditado r;
    r.codigo = ui_->lblNumrec->text();
    r.codap = ui_->lblCodEmpr->text();
    r.nemis = ui_->lblNEmis->text();
    r.demis = ui_->tdbDemis->textoMascarado();
    r.dvencto = ui_->tdbVencto->textoMascarado();
    r.drecbto = ui_->tdbRecto->textoMascarado();
    r.tipcob = ui_->txtTcob->text();
    r.tipbolbco = ui_->txtTipbolbco->text();
    r.nrbco = ui_->txtNrBco->text();
    r.obs1 = ui_->txtObs1->text();
    r.obs2 = ui_->txtObs2->text();
    r.linhas = ui_->tdgItens->linhas();
    return r;
}

void frmRecBaixa::mostraErros(const std::vector<ErroGravacao> &erros)
{
    LimpaErros();
    for (const ErroGravacao &e : erros)
        AnotaErro(e.tipo, e.mensagem);
    session.temErros = session.qtErros > 1;
    frmErros dlg(this);
    showModal(dlg);
    session.cancelaGrava = false;
}

void frmRecBaixa::txtCodRec_LostFocus()
{
    if (modo_ != 1 || val(ui_->txtCodRec->text()) <= 0)
        return;
    const QString numero = ZeroEsq(QString::number(qint64(val(ui_->txtCodRec->text()))), 6);
    ui_->txtCodRec->setText(numero);
    if (!mostra(numero)) {
        MsgBox(QStringLiteral("Recibo não encontrado, pesquise ou tente novamente !"), vbExclamation, kAtencao);
        QTimer::singleShot(0, ui_->txtCodRec, [this] {
            QWidget *foco = QApplication::focusWidget();
            if (foco && isAncestorOf(foco) && !fechando(*this))
                ui_->txtCodRec->setFocus();
        });
        return;
    }
    ui_->tdbDemis->setFocus();
}

void frmRecBaixa::tdbRecto_LostFocus()
{
    if (modo_ != 2)
        return;
    const QString data = ui_->tdbRecto->textoMascarado();
    // A date already refused for its findings is not asked about again when
    // the clerk leaves the field for the save.
    if (data == rectoPerguntado_)
        return;
    const Baixa b = baixaRecibo(cn_, ui_->lblNumrec->text(), rectoOriginal_, data, ui_->txtTcob->text(), session.usuario);
    switch (b.resultado) {
    case ResultadoBaixa::SemMudanca:
        break;
    case ResultadoBaixa::Restaurar:
        ui_->tdbRecto->setData(dateFromText(rectoOriginal_));
        ui_->tdgItens->setFocus();
        break;
    case ResultadoBaixa::ComErros:
        rectoPerguntado_ = data;
        mostraErros(b.erros);
        ui_->tdbRecto->setFocus();
        break;
    case ResultadoBaixa::Baixado:
        limpa();
        trocaModo(1);
        ui_->txtCodRec->setFocus();
        break;
    }
}

void frmRecBaixa::cmdPesquisar_Click()
{
    const ListaRecibos l = listaSalva(cn_);
    Recordset conta = cn_.Execute(l.conta);
    if (conta.eof() || conta[QStringLiteral("I")].toInt() == 0) {
        MsgBox(QStringLiteral("Atenção, não existem recibos cadastrados nesta condição, mude o filtro !"), vbExclamation,
               kAtencao);
        ui_->txtCodRec->setFocus();
        return;
    }
    session.sql = l.lista;
    if (!abrePesquisa(this, QStringLiteral("frmPesqRec"), QStringLiteral("Pesquisa de Recibos"), l.conta)) {
        ui_->txtCodRec->setFocus();
        return;
    }
    if (mostra(session.valorPesq))
        ui_->tdbDemis->setFocus();
}

void frmRecBaixa::cmdFiltro_Click()
{
    frmFiltro dlg(this);
    dlg.setWindowFlags(Qt::Dialog);
    showModal(dlg);
}

void frmRecBaixa::cmdBaixar_Click()
{
    ui_->tdbRecto->setFocus();
}

void frmRecBaixa::cmdGravar_Click()
{
    const Alteracao a = alteraRecibo(cn_, editado(), session.usuario, session.codUsuario);
    if (!a.erros.empty()) {
        mostraErros(a.erros);
        ui_->tdgItens->setFocus();
        return;
    }
    if (!a.gravado) {
        ui_->tdgItens->setFocus();
        return;
    }
    limpa();
    trocaModo(1);
    ui_->txtCodRec->setFocus();
}

void frmRecBaixa::cmdApagar_Click()
{
    if (!excluiRecibo(cn_, ui_->lblNumrec->text(), session.usuario))
        return;
    limpa();
    trocaModo(1);
    ui_->txtCodRec->setFocus();
}

void frmRecBaixa::cmdImprimir_Click()
{
    // The screen is saved first, without a question; a receipt whose save
    // has findings is not printed.
    const Alteracao a = alteraRecibo(cn_, editado(), session.usuario, session.codUsuario, true);
    if (!a.erros.empty()) {
        mostraErros(a.erros);
        return;
    }
    const QString numero = ui_->lblNumrec->text();
    mostraRecibos(cn_, sqlReciboPorNumero(numero));
    if (a.baixaDesfeita)
        rectoOriginal_ = kEmptyDate;
}

void frmRecBaixa::cmdCancelar_Click()
{
    limpa();
    trocaModo(1);
    ui_->txtCodRec->setFocus();
}

void frmRecBaixa::cmdLgrid_Click()
{
    ui_->tdgItens->ajusta();
}

void frmRecBaixa::closeEvent(QCloseEvent *event)
{
    if (modo_ == 2) {
        MsgBox(QStringLiteral("Você não pode abandonar uma operação em andamento, grave ou cancele antes..."),
               vbExclamation, kAtencao);
        event->ignore();
        return;
    }
    marcaFechando(*this);
    event->accept();
}
