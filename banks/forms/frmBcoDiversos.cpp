#include "banks/forms/frmBcoDiversos.h"

#include "banks/demonstrativo.h"
#include "banks/forms/impressaoboletos.h"
#include "banks/forms/frmGAbre_Arq.h"
#include "banks/remessa.h"
#include "core/conversions.h"
#include "core/forms/abrepesquisa.h"
#include "core/prompter.h"
#include "core/session.h"
#include "core/val.h"
#include "core/validators.h"
#include "core/widgets/escolhaarquivo.h"
#include "core/widgets/keyboard.h"
#include "core/widgets/modal.h"
#include "reporting/imprime.h"
#include "ui_frmBcoDiversos.h"

#include <QCloseEvent>
#include <QDir>
#include <QFile>
#include <QHash>

namespace {
const QString kAtencao = QStringLiteral("Atenção...");

QString dataTexto(const Field &f)
{
    return f.isNull() ? QString() : f.toDate().toString(QStringLiteral("dd/MM/yyyy"));
}
}

frmBcoDiversos::frmBcoDiversos(QWidget *parent) : QWidget(parent), ui_(std::make_unique<Ui::frmBcoDiversos>())
{
    ui_->setupUi(this);
    ui_->sstBco->setCurrentIndex(0);
    ui_->tdbDatagR->setMinimo(QDate(1990, 1, 31));
    ui_->tdbDatagR->setMaximo(QDate(2008, 12, 31));
    for (DateField *d : {ui_->tdbDe, ui_->tdbAt}) {
        d->setMinimo(QDate(1990, 1, 31));
        d->setMaximo(QDate(2008, 12, 31));
    }
    const QList<CampoSelecao> &campos = camposSelecao();
    for (int n = 0; n < campos.size(); ++n) {
        ui_->cmbCampo->addItem(campos[n].titulo);
        if (n + 1 < campos.size())
            ui_->cmbOrdem->addItem(campos[n].titulo);
    }
    ui_->tdbPesq->modelo()->setTitulos({QStringLiteral("Recibo"), QStringLiteral("Emissão"), QStringLiteral("Vencto"),
                                        QStringLiteral("Recbto"), QStringLiteral("Apto."), QStringLiteral("Proprietário"),
                                        QStringLiteral("Valor"), QStringLiteral("Bco"), QStringLiteral("Data Bco.")});
    ui_->tdbPesq->modelo()->setColunaNumerica(0);
    for (const QFileInfo &d : QDir::drives())
        ui_->driDriveR->addItem(d.absolutePath());

    aoPerderFoco(ui_->txtRBanco, [this] { txtRBanco_LostFocus(); });
    aoPerderFoco(ui_->txtCodAgR, [this] { ui_->txtCodAgR->setText(formatNumberText(ui_->txtCodAgR->text(), QStringLiteral("0000"))); });
    aoPerderFoco(ui_->mskCgcR, [this] { mskCgcR_LostFocus(); });
    connect(ui_->mskCarteiraR, &QLineEdit::textEdited, this, [this] { mskCarteiraR_Change(); });
    // The first limit is copied to the second when that one is empty.
    aoPerderFoco(ui_->txtDe, [this] { if (ui_->txtAt->text().isEmpty()) ui_->txtAt->setText(ui_->txtDe->text()); });
    aoPerderFoco(ui_->tdnDe, [this] { if (ui_->tdnAt->text().isEmpty()) ui_->tdnAt->setText(ui_->tdnDe->text()); });
    aoPerderFoco(ui_->tdbDe, [this] { if (ui_->tdbAt->vazio()) ui_->tdbAt->setData(ui_->tdbDe->data()); });
    aoPerderFoco(ui_->txtAt, [this] { if (ui_->txtAt->text().isEmpty()) ui_->txtAt->setText(ui_->txtDe->text()); });
    aoPerderFoco(ui_->tdnAt, [this] { if (ui_->tdnAt->text().isEmpty()) ui_->tdnAt->setText(ui_->tdnDe->text()); });
    aoPerderFoco(ui_->tdbAt, [this] { if (ui_->tdbAt->vazio()) ui_->tdbAt->setData(ui_->tdbDe->data()); });

    connect(ui_->cmdPesqBco, &QPushButton::clicked, this, &frmBcoDiversos::cmdPesqBco_Click);
    connect(ui_->cmdPastaR, &QPushButton::clicked, this, &frmBcoDiversos::cmdPastaR_Click);
    connect(ui_->cmdGravaR, &QPushButton::clicked, this, &frmBcoDiversos::cmdGravaR_Click);
    connect(ui_->cmdGravad2, &QPushButton::clicked, this, &frmBcoDiversos::cmdGravaR_Click);
    connect(ui_->cmdTrocatxt, &QPushButton::clicked, this, &frmBcoDiversos::cmdTrocatxt_Click);
    connect(ui_->cmdCarregatxt, &QPushButton::clicked, this, &frmBcoDiversos::cmdCarregatxt_Click);
    connect(ui_->cmbCampo, &QComboBox::currentIndexChanged, this, &frmBcoDiversos::cmbCampo_Click);
    connect(ui_->cmdSelRec, &QPushButton::clicked, this, &frmBcoDiversos::cmdSelRec_Click);
    connect(ui_->cmdLimpaPesq, &QPushButton::clicked, this, &frmBcoDiversos::cmdLimpaPesq_Click);
    connect(ui_->cmdCalcBarra, &QPushButton::clicked, this, &frmBcoDiversos::cmdCalcBarra_Click);
    connect(ui_->cmdCalcBarraG, &QPushButton::clicked, this, &frmBcoDiversos::cmdCalcBarraG_Click);
    connect(ui_->cmdGerarR, &QPushButton::clicked, this, &frmBcoDiversos::cmdGerarR_Click);
    connect(ui_->cmdImprimir, &QPushButton::clicked, this, &frmBcoDiversos::cmdImprimir_Click);
    connect(ui_->cmdImprTot, &QPushButton::clicked, this, &frmBcoDiversos::cmdImprTot_Click);
    connect(ui_->cmdSair, &QPushButton::clicked, this, [this] { fechaForm(*this); });
    connect(ui_->tdbPesq, &Grade::linhaMudou, this,
            [this](int linha) { ui_->txtNrRecibo->setText(ui_->tdbPesq->texto(linha, 0)); });
    aplicaTeclado(*this);

    cn_.Open(session.conAtiva);
    carregaParametros();
    cmbCampo_Click();
    ui_->prgBarra->setValue(0);
}

frmBcoDiversos::~frmBcoDiversos()
{
    marcaFechando(*this);
    if (cn_.State() == 1)
        cn_.Close();
}

void frmBcoDiversos::carregaParametros()
{
    Recordset rs = cn_.Execute(QStringLiteral("SELECT * FROM Parametros WHERE codigo = 1"));
    QLineEdit *instru[6] = {ui_->txtInstru1, ui_->txtInstru2, ui_->txtInstru3,
                            ui_->txtInstru4, ui_->txtInstru5, ui_->txtInstru6};
    for (int n = 0; n < 6; ++n)
        if (!rs.eof() && !rs[QStringLiteral("Instrubco%1").arg(n + 1)].isNull())
            instru[n]->setText(rs[QStringLiteral("Instrubco%1").arg(n + 1)].text());

    const ParametrosGravados g = leParametrosBanco(cn_);
    ui_->txtRBanco->setText(g.rbanco);
    ui_->txtCodAgR->setText(g.ritauag);
    ui_->txtCodCedente->setText(g.ritaucc);
    ui_->txtCedenteR->setText(g.ritaucd);
    ui_->txtConvenioR->setText(g.rconvenio);
    ui_->mskCgcR->setText(g.ritaucgc);
    ui_->mskCpfR->setText(g.ritaucpf);
    ui_->mskCarteiraR->setText(g.ritaucart.trimmed());
    ui_->txtNnR->setText(g.ritaunn);
    ui_->txtI1R->setText(g.ritaui1);
    ui_->txtI2R->setText(g.ritaui2);
    carregaEspecies(g.ritauespNulo ? QStringLiteral("DM") : g.ritauesp);

    Recordset bal = cn_.Execute(QStringLiteral("SELECT titulo,arqway FROM Rbalrec"));
    if (!bal.eof()) {
        ui_->txtTitulo->setText(bal[QStringLiteral("titulo")].text());
        // The text chosen last time is the one the slips carry until another is chosen.
        if (!bal[QStringLiteral("arqway")].text().isEmpty())
            session.arqway = bal[QStringLiteral("arqway")].text();
    }
    ui_->lblTextoSelecionado->setText(session.arqway);

    bancoMostrado_ = g.rbanco;
    ui_->lblBco->setText(nomeDoBanco(g.rbanco));
    ui_->txtNomeR->setText(nomeRemessaPadrao(session.empat));
    ui_->dirPastaR->setText(QDir(session.sysPath).absolutePath());
    ui_->tdbDatagR->setData(QDate::currentDate());
    habilitaPorBanco();
}

// The banks' names are reference rows of the system file.
QString frmBcoDiversos::nomeDoBanco(const QString &banco)
{
    Connection sistema;
    sistema.Open(session.conSistema);
    Recordset rs = sistema.Execute(QStringLiteral("SELECT nome FROM bancos WHERE codigo = ")
                                   + QString::number(qint64(val(banco))));
    const QString nome = rs.eof() ? QString() : rs[QStringLiteral("nome")].text();
    rs.Close();
    sistema.Close();
    return nome;
}

void frmBcoDiversos::habilitaPorBanco()
{
    const bool remessa = bancoComRemessa(ui_->txtRBanco->text());
    ui_->cmdCalcBarraG->setEnabled(!remessa);
    ui_->cmdGerarR->setEnabled(remessa);
}

void frmBcoDiversos::carregaEspecies(const QString &codigoAtual)
{
    const QString banco = ui_->txtRBanco->text();
    ui_->cmbEspecieR->clear();
    ui_->cmbEspecieR->addItems(especiesDoBanco(banco));
    ui_->cmbEspecieR->setCurrentText(entradaDaEspecie(banco, codigoAtual));
}

TelaBanco frmBcoDiversos::tela() const
{
    TelaBanco t;
    t.banco = ui_->txtRBanco->text();
    t.agencia = ui_->txtCodAgR->text();
    t.cedente = ui_->txtCodCedente->text();
    t.cedenteNome = ui_->txtCedenteR->text();
    t.convenio = ui_->txtConvenioR->text();
    t.cgc = ui_->mskCgcR->textoMascarado();
    t.cpf = ui_->mskCpfR->textoMascarado();
    t.carteira = ui_->mskCarteiraR->textoMascarado();
    t.nn = ui_->txtNnR->text();
    t.especie = codigoEspecie(t.banco, ui_->cmbEspecieR->currentText());
    t.i1 = ui_->txtI1R->text();
    t.i2 = ui_->txtI2R->text();
    const QLineEdit *instru[6] = {ui_->txtInstru1, ui_->txtInstru2, ui_->txtInstru3,
                                  ui_->txtInstru4, ui_->txtInstru5, ui_->txtInstru6};
    for (int n = 0; n < 6; ++n)
        t.instrucoes[n] = instru[n]->text();
    return t;
}

ParametrosBanco frmBcoDiversos::parametrosBanco() const
{
    ParametrosBanco p;
    p.banco = ui_->txtRBanco->text();
    p.agencia = ui_->txtCodAgR->text();
    p.cedente = ui_->txtCodCedente->text();
    p.convenio = ui_->txtConvenioR->text();
    p.carteira = ui_->mskCarteiraR->textoMascarado();
    p.agenciaForm = agenciaForm_;
    return p;
}

void frmBcoDiversos::mostraProgresso(int feitos, int total)
{
    ui_->prgBarra->setMaximum(total);
    ui_->prgBarra->setValue(feitos);
}

void frmBcoDiversos::txtRBanco_LostFocus()
{
    const QString banco = ui_->txtRBanco->text();
    if (banco == bancoMostrado_)
        return;
    const QString especieAtual = codigoEspecie(bancoMostrado_, ui_->cmbEspecieR->currentText());
    ui_->lblBco->setText(nomeDoBanco(banco));
    if (!kBancosAtendidos.contains(banco)) {
        MsgBox(QStringLiteral("Programado apenas para os Bancos 001, 104, 151, 237, 341, 353, 409 e 422"), vbOKOnly,
               kAtencao);
        ui_->txtRBanco->clear();
        ui_->lblBco->clear();
        bancoMostrado_.clear();
        ui_->txtRBanco->setFocus();
        return;
    }
    bancoMostrado_ = banco;
    habilitaPorBanco();
    carregaEspecies(especieAtual);
}

void frmBcoDiversos::mskCarteiraR_Change()
{
    const QString recusa = recusaCarteira(ui_->txtRBanco->text(), ui_->mskCarteiraR->textoMascarado());
    if (recusa.isEmpty())
        return;
    MsgBox(recusa, vbCritical, kAtencao);
    ui_->mskCarteiraR->setFocus();
}

void frmBcoDiversos::mskCgcR_LostFocus()
{
    const QString numero = ui_->mskCgcR->textoPuro();
    if (!numero.isEmpty() && !ValidaCGC(numero))
        ui_->mskCgcR->clear();
}

void frmBcoDiversos::cmdPesqBco_Click()
{
    if (!abrePesquisa(this, QStringLiteral("frmPesqGeral"), QStringLiteral("Pesquisa de Bancos"),
                      QStringLiteral("Bancos")))
        return;
    ui_->txtRBanco->setText(ZeroEsq(session.valorPesq, 3));
    txtRBanco_LostFocus();
}

void frmBcoDiversos::cmdPastaR_Click()
{
    const QString pasta = escolheArquivo(this, EscolhaArquivo::Pasta, QStringLiteral("Pasta Selecionada"),
                                         ui_->dirPastaR->text());
    if (!pasta.isEmpty())
        ui_->dirPastaR->setText(QDir(pasta).absolutePath());
}

bool frmBcoDiversos::cmdGravaR_Click()
{
    const TelaBanco t = tela();
    const RecusaGravacao recusa = validaGravacao(t);
    if (recusa.recusado()) {
        MsgBox(recusa.mensagem, vbCritical, kAtencao);
        if (QWidget *c = findChild<QWidget *>(recusa.controle))
            c->setFocus();
        return false;
    }
    cn_.Execute(sqlGravaParametrosBanco(t));
    cn_.Execute(sqlGravaRBalRec(session.arqway, ui_->txtTitulo->text()));
    return true;
}

void frmBcoDiversos::cmdTrocatxt_Click()
{
    const QString anterior = session.arqway;
    frmGAbre_Arq dialogo(this);
    dialogo.setObjectName(QStringLiteral("frmGAbre_Arq"));
    if (showModal(dialogo) != QDialog::Accepted || session.arqway.isEmpty()) {
        session.arqway = anterior;
        MsgBox(QStringLiteral("Você não selecionou nenhum arquivo texto, tente novamente !"), vbExclamation, kAtencao);
        return;
    }
    ui_->lblTextoSelecionado->setText(session.arqway);
    ui_->lblTexto->setText(QStringLiteral("Texto Não Incluído !!!"));
}

void frmBcoDiversos::cmdCarregatxt_Click()
{
    if (session.arqway.isEmpty()) {
        MsgBox(QStringLiteral("Não há nenhum texto selecionado, use o botão [Trocar/Incluir Texto] !"));
        return;
    }
    if (!QFile::exists(session.arqway)) {
        MsgBox(QStringLiteral("O texto escolhido não está acessível ou não existe, verifique ! "));
        return;
    }
    Carrega_Texto(QString(), QString(), QString(), QString());
    ui_->lblTexto->setText(QStringLiteral("Texto Incluído !"));
}

void frmBcoDiversos::cmbCampo_Click()
{
    const TipoLimite tipo = camposSelecao().value(ui_->cmbCampo->currentIndex()).tipo;
    ui_->txtDe->setVisible(tipo == TipoLimite::Texto);
    ui_->txtAt->setVisible(tipo == TipoLimite::Texto);
    ui_->tdnDe->setVisible(tipo == TipoLimite::Numero);
    ui_->tdnAt->setVisible(tipo == TipoLimite::Numero);
    ui_->tdbDe->setVisible(tipo == TipoLimite::Data);
    ui_->tdbAt->setVisible(tipo == TipoLimite::Data);
    if (tipo != TipoLimite::Texto) {
        ui_->txtDe->clear();
        ui_->txtAt->clear();
    }
    if (tipo != TipoLimite::Numero) {
        ui_->tdnDe->clear();
        ui_->tdnAt->clear();
    }
    if (tipo != TipoLimite::Data) {
        ui_->tdbDe->limpa();
        ui_->tdbAt->limpa();
    }
}

void frmBcoDiversos::cmdSelRec_Click()
{
    FiltroSelecao f;
    f.campo = ui_->cmbCampo->currentIndex();
    switch (camposSelecao().value(f.campo).tipo) {
    case TipoLimite::Texto:
        f.de = ui_->txtDe->text();
        f.ate = ui_->txtAt->text();
        break;
    case TipoLimite::Numero:
        f.de = ui_->tdnDe->text();
        f.ate = ui_->tdnAt->text();
        break;
    case TipoLimite::Data:
        f.de = ui_->tdbDe->text();
        f.ate = ui_->tdbAt->text();
        break;
    }
    f.situacao = ui_->optA->isChecked() ? Situacao::Abertos
                 : ui_->optB->isChecked() ? Situacao::Baixados
                                          : Situacao::Todos;
    f.reemite = ui_->chkReemite->isChecked();
    f.ordem = ui_->cmbOrdem->currentIndex();
    const QString where = whereSelecao(f);

    Ampulheta ampulheta;
    ui_->tdbPesq->modelo()->limpa();
    Recordset conta = cn_.Execute(sqlContagemSelecao(where));
    const qint64 quantos = conta.eof() ? 0 : qint64(val(conta[QStringLiteral("I")].text()));
    if (quantos <= 0) {
        where_.clear();
        calc_.selecao.clear();
        ui_->lblContagem->clear();
        ponteiroNormal();
        MsgBox(QStringLiteral("Atenção, não existem prestações cadastradas nesta condição !"));
        return;
    }
    for (Recordset rs = cn_.Execute(sqlListaSelecao(where)); !rs.eof(); rs.moveNext())
        ui_->tdbPesq->modelo()->adiciona({rs[QStringLiteral("codigo")].text(), dataTexto(rs[QStringLiteral("demis")]),
                                          dataTexto(rs[QStringLiteral("dvencto")]), dataTexto(rs[QStringLiteral("drecbto")]),
                                          rs[QStringLiteral("codap")].text(), rs[QStringLiteral("nome")].text(),
                                          formatMoney(rs[QStringLiteral("vtotal")].toMoney(), QStringLiteral("###,##0.00")),
                                          rs[QStringLiteral("codbco")].text(), dataTexto(rs[QStringLiteral("demisbco")])});
    ui_->tdbPesq->ajustaColunas();
    where_ = where;
    calc_.selecao = sqlSelecao(where);
    ui_->lblContagem->setText(QString::number(quantos) + QStringLiteral(" recibo(s) na seleção"));
}

void frmBcoDiversos::cmdLimpaPesq_Click()
{
    where_.clear();
    calc_.selecao.clear();
    ui_->tdbPesq->modelo()->limpa();
    ui_->lblContagem->clear();
    ui_->txtDe->clear();
    ui_->txtAt->clear();
    ui_->tdnDe->clear();
    ui_->tdnAt->clear();
    ui_->tdbDe->limpa();
    ui_->tdbAt->limpa();
    ui_->prgBarra->setValue(0);
}

void frmBcoDiversos::cmdCalcBarra_Click()
{
    calc_.parametros = parametrosBanco();
    calc_.dataGeracao = ui_->tdbDatagR->data();
    calc_.progresso = {};
    const FimCalcBarra fim = cmdCalcBarra(cn_, calc_, ui_->txtNrRecibo->text());
    if (fim == FimCalcBarra::FaltaSelecao)
        ui_->cmdSelRec->setFocus();
}

void frmBcoDiversos::cmdCalcBarraG_Click()
{
    calc_.parametros = parametrosBanco();
    calc_.dataGeracao = ui_->tdbDatagR->data();
    calc_.progresso = [this](int feitos, int total) { mostraProgresso(feitos, total); };
    ui_->prgBarra->setValue(0);
    Ampulheta ampulheta;
    const FimCalcBarra fim = cmdCalcBarraG(cn_, calc_);
    if (fim == FimCalcBarra::FaltaSelecao)
        ui_->cmdSelRec->setFocus();
}

void frmBcoDiversos::cmdGerarR_Click()
{
    FormRemessa f;
    const TelaBanco t = tela();
    f.dados.parametros = parametrosBanco();
    f.dados.cedenteNome = t.cedenteNome;
    f.dados.cgc = t.cgc;
    f.dados.cpf = t.cpf;
    f.dados.especie = ui_->cmbEspecieR->currentText();
    f.dados.instrucao1 = t.i1;
    f.dados.instrucao2 = t.i2;
    f.dados.dataGeracao = ui_->tdbDatagR->data();
    f.nnr = ui_->txtNnR->text();
    f.nomeArquivo = ui_->txtNomeR->text();
    f.pasta = ui_->dirPastaR->text();
    f.inquilino = ui_->optInqRe->isChecked();
    f.selecao = calc_.selecao;
    f.gravaParametros = [this, &f] {
        ui_->txtNnR->setText(f.nnr);
        cmdGravaR_Click();
    };
    f.progresso = [this](int feitos, int total) { mostraProgresso(feitos, total); };
    ui_->prgBarra->setValue(0);
    Ampulheta ampulheta;
    const FimRemessa fim = cmdGerarR(cn_, f);
    ui_->txtNnR->setText(f.nnr);
    if (fim == FimRemessa::FaltaSelecao)
        ui_->cmdSelRec->setFocus();
    else if (fim == FimRemessa::FaltaNome) {
        ui_->sstBco->setCurrentIndex(0);
        ui_->txtNomeR->setFocus();
    }
}

// The print's parameters: the bank, date, instructions and title on the form,
// the rest as saved.
ParametrosImpressao frmBcoDiversos::parametrosImpressao()
{
    ParametrosImpressao p;
    p.banco = ui_->txtRBanco->text();
    p.dataProc = ui_->tdbDatagR->data();
    p.titulo = ui_->txtTitulo->text();
    p.instrucoes = tela().instrucoes;
    leParametrosImpressao(cn_, p);
    // The wallet is the one on the form, the one the slips were computed with.
    p.carteira = ui_->mskCarteiraR->textoPuro();
    return p;
}

void frmBcoDiversos::cmdImprimir_Click()
{
    ImpressaoBoletos impressao;
    if (imprimeBoleto(cn_, parametrosImpressao(), ui_->txtNrRecibo->text(), impressao) == FimImpressaoBoleto::Pronto)
        mostraBoletos(impressao);
}

void frmBcoDiversos::cmdImprTot_Click()
{
    // Bank 151 computes with the agency this print keeps.
    if (!where_.isEmpty())
        agenciaForm_ = ZeroEsq(ui_->txtCodAgR->text(), 4);
    ImpressaoBoletos impressao;
    Ampulheta ampulheta;
    switch (imprimeSelecaoBoletos(cn_, parametrosImpressao(), where_, impressao)) {
    case FimImpressaoBoleto::Pronto:
        mostraBoletos(impressao);
        break;
    case FimImpressaoBoleto::SemSelecao:
        ui_->sstBco->setCurrentIndex(2);
        ui_->cmdSelRec->setFocus();
        break;
    default:
        break;
    }
}

void frmBcoDiversos::closeEvent(QCloseEvent *event)
{
    marcaFechando(*this);
    if (cn_.State() == 1)
        cn_.Execute(sqlGravaInstrucoesAoSair(tela()));
    event->accept();
}
