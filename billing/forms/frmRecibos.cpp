#include "billing/forms/frmRecibos.h"

#include "billing/baixa.h"
#include "billing/forms/gradeitens.h"
#include "billing/forms/imprimerecibo.h"
#include "billing/manual.h"
#include "billing/recibo.h"
#include "core/anotaerro.h"
#include "core/conversions.h"
#include "core/forms/abrepesquisa.h"
#include "core/forms/formcatalog.h"
#include "core/forms/frmErros.h"
#include "core/prompter.h"
#include "core/session.h"
#include "core/val.h"
#include "core/widgets/keyboard.h"
#include "core/widgets/modal.h"
#include "ui_frmRecibos.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QRegularExpressionValidator>
#include <QTimer>

frmRecibos::frmRecibos(QWidget *parent) : QWidget(parent), ui_(std::make_unique<Ui::frmRecibos>())
{
    ui_->setupUi(this);
    ui_->tdgItens->setConexao(&cn_);
    ui_->tdgItens->installEventFilter(this);
    // The total follows every change of the grid; a code left empty ends the typing.
    connect(ui_->tdgItens, &GradeItens::totalMudou, this, [this](Money t) {
        total_ = t;
        mostraTotal();
    });
    connect(ui_->tdgItens, &GradeItens::itensTerminados, this, [this] { ui_->cmdGravar->setFocus(); });

    connect(ui_->cmdGravar, &QPushButton::clicked, this, &frmRecibos::cmdGravar_Click);
    connect(ui_->cmdCancelar, &QPushButton::clicked, this, &frmRecibos::cmdCancelar_Click);
    connect(ui_->cmdAdados, &QPushButton::clicked, this, &frmRecibos::cmdAdados_Click);
    connect(ui_->cmdPula, &QPushButton::clicked, this, &frmRecibos::cmdPula_Click);
    connect(ui_->cmdInterromper, &QPushButton::clicked, this, &frmRecibos::cmdInterromper_Click);
    connect(ui_->cmdLgrid, &QPushButton::clicked, this, &frmRecibos::cmdLgrid_Click);
    connect(ui_->cmdPesqEv, &QPushButton::clicked, this, &frmRecibos::cmdPesqEv_Click);
    aplicaTeclado(*this);
    aoPerderFoco(ui_->tdbRefer, [this] { tdbRefer_LostFocus(); });
    // The place of collection takes digits, the comma and backspace only.
    ui_->txtTcob->setValidator(new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9,]*")), this));

    // Load.
    cn_.ConnectionTimeout = 100;
    cn_.Open(session.conAtiva);
    ui_->tdgItens->limpa();
    total_ = Money();
    mostraTotal();
    ui_->cmbSituacao->addItems({QStringLiteral("Ativo"), QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3")});
    dadosHabilitados(false);
    p_ = leParametros(cn_);
    novo_ = !p_.fretit;
    if (!novo_)
        return;  // the receipt is picked once the window shows
    numero_ = primeiroNumero(p_.fnreci);
    selecao_ = selecaoManual(p_.fsempr, p_.fordem, p_.fnemis, dateFromText(p_.fdemis));
    if (p_.fordem == QLatin1Char('S'))
        return;  // the apartment is picked once the window shows
    codigos_ = codigosDaSelecao(cn_, selecao_);
    if (codigos_.isEmpty()) {
        MsgBox(QStringLiteral("Todos recibos já foram impressos ou não há recibos para emissão nesta condição"),
               vbExclamation, QStringLiteral("Atenção !"));
        fechado_ = true;  // Fnreci stays as it was: nothing was taken
        cn_.Close();
        marcaDescarregado(*this);
        return;
    }
    apto_ = codigos_.first();
}

frmRecibos::~frmRecibos()
{
    if (cn_.State() == 1)
        cn_.Close();
}

// The work starts once the window is on screen: a pick of an apartment or of
// a receipt is a dialog over it.
void frmRecibos::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (iniciado_)
        return;
    iniciado_ = true;
    QTimer::singleShot(0, this, &frmRecibos::comeca);
}

void frmRecibos::comeca()
{
    if (fechado_)
        return;
    if (!novo_) {
        escolheRecibo();
        return;
    }
    if (p_.fordem == QLatin1Char('S') && !escolheApto())
        return;
    proposta();
}

void frmRecibos::mostraTotal()
{
    ui_->lblTotal->setText(QStringLiteral("R$ ") + formatNumber(total_.toDouble(), QStringLiteral("###,###,##0.00")));
}

void frmRecibos::dadosHabilitados(bool sim)
{
    for (QWidget *w : std::initializer_list<QWidget *>{ui_->txtTcob, ui_->txtTipbolbco, ui_->cmbSituacao, ui_->tdbVencto,
                                                       ui_->tdbHonor, ui_->tdbHoncb, ui_->tdbHonfr, ui_->tdbRefer})
        w->setEnabled(sim);
    ui_->tdbRecto->setEnabled(sim && !novo_);
    for (QWidget *w : std::initializer_list<QWidget *>{ui_->cmdAdados, ui_->cmdGravar, ui_->cmdCancelar,
                                                       ui_->cmdInterromper, ui_->cmdLgrid, ui_->cmdPula, ui_->tdgItens})
        w->setEnabled(!sim);
}

void frmRecibos::mostraApto(const AptoRecibo &a)
{
    ui_->lblCodEmpr->setText(a.achado ? a.codigo : QString());
    ui_->lblCliente->setText(a.nome);
    if (a.achado) {
        if (ui_->cmbSituacao->findText(a.situacao) < 0)
            ui_->cmbSituacao->addItem(a.situacao);  // "Inativo"
        ui_->cmbSituacao->setCurrentText(a.situacao);
    } else {
        ui_->cmbSituacao->setCurrentIndex(-1);
    }
    ui_->tdbHonor->setValor(a.honor.toDouble());
    ui_->tdbHoncb->setValor(a.honcb.toDouble());
    ui_->tdbHonfr->setValor(a.honfr.toDouble());
    ui_->tdbRefer->setValor(a.refer);
}

// The proposal for the current apartment (new mode).
void frmRecibos::proposta()
{
    ui_->lblNEmis->setText(p_.fnemis);
    ui_->lblNumrec->setText(numero_);
    ui_->lblEmissao->setText(p_.fdemis);
    ui_->lblNBanco->clear();
    ui_->tdbRecto->limpa();
    ui_->txtObs1->clear();
    ui_->txtObs2->clear();
    const AptoRecibo a = leAptoRecibo(cn_, apto_, p_.fmvcto);
    mostraApto(a);
    ui_->tdbVencto->setData(a.vencto);
    ui_->txtTcob->setText(a.achado ? a.tipcob : QString());
    ui_->txtTipbolbco->setText(a.tipbolbco);
    // The screen's amounts, as the clerk may have changed them, make the proposal.
    AptoRecibo tela = a;
    tela.situacao = ui_->cmbSituacao->currentText();
    const Proposta pr = propoeItens(p_, tela);
    ui_->tdgItens->mostra(pr.linhas);
    total_ = pr.total;  // the fee as the screen shows it, until the grid is adjusted
    mostraTotal();
    dadosHabilitados(false);
}

bool frmRecibos::escolheApto()
{
    // The pick lists the apartments of the month's selection.
    QString tabela = selecao_.lista.mid(selecao_.lista.indexOf(QStringLiteral("FROM ")) + 5);
    tabela.truncate(tabela.lastIndexOf(QStringLiteral(" ORDER BY")));
    if (!abrePesquisa(this, QStringLiteral("frmPesqap"), QStringLiteral("Selecione o Apartamento Desejado"), tabela)) {
        fecha();
        return false;
    }
    Recordset rs = cn_.Execute(QStringLiteral("SELECT codigo,nome FROM Aptos Where codigo = '") + session.valorPesq
                               + QStringLiteral("'"));
    apto_ = rs.eof() ? session.valorPesq : rs[QStringLiteral("codigo")].text();
    return true;
}

void frmRecibos::escolheRecibo()
{
    session.sql = QStringLiteral("SELECT codauto, codigo, codap, demis, dvencto, tipcob,drecbto,vtotal,nrbco")
        + QStringLiteral(" FROM recibos WHERE situacao = 'A' ORDER BY codigo");
    if (!abrePesquisa(this, QStringLiteral("frmPesqRec"), QStringLiteral("Pesquisa de Recibos"),
                      QStringLiteral("SELECT Count(codauto) As I FROM Recibos WHERE situacao = 'A'"))) {
        fecha();
        return;
    }
    numero_ = ZeroEsq(session.valorPesq, 6);
    ReciboEditado r;
    if (!leReciboEditado(cn_, numero_, &r)) {
        fecha();
        return;
    }
    ui_->lblNEmis->setText(r.nemis);
    ui_->lblNumrec->setText(r.codigo);
    ui_->lblEmissao->setText(r.demis);
    ui_->lblNBanco->setText(r.nrbco);
    ui_->tdbRecto->setText(r.drecbto);
    ui_->tdbVencto->setText(r.dvencto);
    ui_->txtTcob->setText(r.tipcob);
    ui_->txtTipbolbco->setText(r.tipbolbco);
    ui_->txtObs1->setText(r.obs1);
    ui_->txtObs2->setText(r.obs2);
    ui_->tdgItens->mostra(r.linhas);
    total_ = ui_->tdgItens->total();
    mostraTotal();
    apto_ = r.codap;
    mostraApto(leAptoRecibo(cn_, r.codap, p_.fmvcto));
    dadosHabilitados(false);
}

bool frmRecibos::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == ui_->tdgItens && event->type() == QEvent::KeyPress
        && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Delete) {  // an open editor takes its own keys
        excluiItem();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void frmRecibos::excluiItem()
{
    GradeItens *g = ui_->tdgItens;
    const int linha = g->currentRow();
    if (linha < 0 || !g->item(linha, 0) || g->item(linha, 0)->text().trimmed().isEmpty())
        return;
    if (MsgBox(QStringLiteral("Exclui o item selecionado ?"), vbYesNo + vbQuestion + vbDefaultButton2,
               QStringLiteral("Atenção... Confirme"))
        != vbYes)
        return;
    double valor = 0;
    if (g->item(linha, 4))
        numeroDaCelula(g->item(linha, 4)->text(), &valor);
    total_ -= Money::fromDouble(valor);
    g->removeRow(linha);
    mostraTotal();
}

void frmRecibos::cmdLgrid_Click()
{
    ui_->tdgItens->ajusta();
}

void frmRecibos::cmdCancelar_Click()
{
    ui_->tdgItens->limpa();
    total_ = Money();
    mostraTotal();
    if (novo_)
        proposta();
}

void frmRecibos::cmdAdados_Click()
{
    dadosHabilitados(true);
    ui_->txtTcob->setFocus();
}

void frmRecibos::tdbRefer_LostFocus()
{
    if (!ui_->tdbRefer->isEnabled())
        return;
    if (novo_ && !apto_.isEmpty())
        cn_.Execute(sqlMudaApto(apto_, ui_->tdbVencto->data(), ui_->txtTcob->text(), ui_->txtTipbolbco->text(),
                                ui_->cmbSituacao->currentText(), Money::fromDouble(ui_->tdbHonor->valor()),
                                ui_->tdbRefer->valor(), Money::fromDouble(ui_->tdbHoncb->valor()),
                                Money::fromDouble(ui_->tdbHonfr->valor())));
    dadosHabilitados(false);
    if (novo_)
        proposta();
}

void frmRecibos::cmdGravar_Click()
{
    cmdLgrid_Click();
    ReciboManual r;
    r.numero = numero_;
    r.codap = apto_;
    r.nemis = ui_->lblNEmis->text();
    r.demis = ui_->lblEmissao->text();
    r.dvencto = ui_->tdbVencto->textoMascarado();
    r.drecbto = ui_->tdbRecto->textoMascarado();
    r.tipcob = ui_->txtTcob->text();
    r.tipbolbco = ui_->txtTipbolbco->text();
    r.obs1 = ui_->txtObs1->text();
    r.obs2 = ui_->txtObs2->text();
    const QString proximoNr = proximoNumero(numero_);
    const GravacaoManual g = gravaReciboManual(cn_, r, ui_->tdgItens->linhas(), novo_, proximoNr);
    if (!g.erros.empty()) {
        LimpaErros();
        for (const ErroGravacao &e : g.erros)
            AnotaErro(e.tipo, e.mensagem);
        session.temErros = true;
        frmErros dlg(this);
        showModal(dlg);
        session.cancelaGrava = false;
        return;
    }
    if (novo_)
        numero_ = proximoNr;
    if (!p_.fspool)
        imprime(r.numero);
    proximo();
}

// Straight to the printer; a printing fault is not reported on the form.
void frmRecibos::imprime(const QString &numero)
{
    imprimeReciboDireto(cn_, numero);
}

void frmRecibos::proximo()
{
    if (!novo_) {
        escolheRecibo();
        return;
    }
    if (p_.fordem == QLatin1Char('S')) {
        if (!escolheApto())
            return;
    } else {
        ++indice_;
        if (indice_ >= codigos_.size()) {
            fecha();
            return;
        }
        apto_ = codigos_[indice_];
    }
    proposta();
}

void frmRecibos::cmdPula_Click()
{
    proximo();
}

void frmRecibos::cmdInterromper_Click()
{
    fecha();
}

void frmRecibos::cmdPesqEv_Click()
{
    if (!abrePesquisa(this, QStringLiteral("frmPesqEv"), QStringLiteral("Pesquisa de Eventos"), QStringLiteral("Eventos"))
        || session.valorPesq.trimmed().isEmpty())
        return;
    GradeItens *g = ui_->tdgItens;
    const int linha = g->currentRow() >= 0 ? g->currentRow() : g->rowCount() - 1;
    if (linha < 0)
        return;
    if (!g->item(linha, 0))
        g->setItem(linha, 0, new QTableWidgetItem);
    g->item(linha, 0)->setText(ZeroEsq(session.valorPesq, 3));
    g->setCurrentCell(linha, 2);  // the {Tab} after the code
}

void frmRecibos::fecha()
{
    fechaForm(*this);
}

// Closing gives the numbers taken back to Parametros: Fnreci is the last
// receipt issued. A rectification took no number.
void frmRecibos::closeEvent(QCloseEvent *event)
{
    marcaFechando(*this);
    if (!fechado_ && cn_.State() == 1) {
        fechado_ = true;
        if (novo_)
            gravaUltimoNumero(cn_, numero_);
        cn_.Close();
    }
    event->accept();
}
