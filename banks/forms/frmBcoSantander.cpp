#include "banks/forms/frmBcoSantander.h"

#include "banks/bancos.h"
#include "banks/bcodiversos.h"
#include "banks/calcbarra.h"
#include "banks/checkdigits.h"
#include "banks/demonstrativo.h"
#include "banks/forms/boletos.h"
#include "banks/forms/frmGAbre_Arq.h"
#include "banks/forms/impressaoboletos.h"
#include "core/conversions.h"
#include "core/prompter.h"
#include "core/session.h"
#include "core/val.h"
#include "core/validators.h"
#include "core/widgets/keyboard.h"
#include "core/widgets/modal.h"
#include "ui_frmBcoSantander.h"

namespace {
const QString kAtencao = QStringLiteral("Atenção...");
}

frmBcoSantander::frmBcoSantander(QWidget *parent) : QWidget(parent), ui_(std::make_unique<Ui::frmBcoSantander>())
{
    ui_->setupUi(this);
    ui_->tdbDatagR->setMinimo(QDate(1990, 1, 31));
    ui_->tdbDatagR->setMaximo(QDate(2008, 12, 31));
    ui_->tdbMesano->setFormato(DateField::MesAno);
    ui_->cmbModelo->addItem(kDemonstrativoModelo1);
    ui_->cmbModelo->addItem(kDemonstrativoModelo2);
    ui_->cmbModelo->setCurrentIndex(-1);
    // The species are those of bank 409.
    ui_->cmbEspecieR->addItems(especiesDoBanco(QStringLiteral("409")));

    aoPerderFoco(ui_->txtCodAgR, [this] { ui_->txtCodAgR->setText(formatNumberText(ui_->txtCodAgR->text(), QStringLiteral("0000"))); });
    aoPerderFoco(ui_->mskCgcR, [this] {
        const QString numero = ui_->mskCgcR->textoPuro();
        if (!numero.isEmpty() && !ValidaCGC(numero))
            ui_->mskCgcR->clear();
    });
    connect(ui_->mskCarteiraR, &QLineEdit::textEdited, this, &frmBcoSantander::mskCarteiraR_Change);
    connect(ui_->mskNnumero, &QLineEdit::textChanged, this, &frmBcoSantander::mskNnumero_Change);
    connect(ui_->cmdGravaR, &QPushButton::clicked, this, &frmBcoSantander::cmdGravaR_Click);
    connect(ui_->cmdGerarR, &QPushButton::clicked, this, [] {
        MsgBox(QStringLiteral("A Remessa do Banco Santander ainda não foi definida, utilize apenas a impressão de boletos !"));
    });
    connect(ui_->cmdImprimir, &QPushButton::clicked, this, &frmBcoSantander::cmdImprimir_Click);
    connect(ui_->cmdTrocatxt, &QPushButton::clicked, this, &frmBcoSantander::cmdTrocatxt_Click);
    connect(ui_->cmdCriaRel, &QPushButton::clicked, this, &frmBcoSantander::cmdCriaRel_Click);
    connect(ui_->cmdSair, &QPushButton::clicked, this, [this] { fechaForm(*this); });
    aplicaTeclado(*this);

    cn_.Open(session.conAtiva);
    const ParametrosGravados g = leParametrosBanco(cn_);
    ui_->txtCodAgR->setText(g.ritauag);
    ui_->mskCcR->setText(g.ritaucc);
    ui_->txtCedenteR->setText(g.ritaucd);
    ui_->mskCgcR->setText(g.ritaucgc);
    ui_->mskCpfR->setText(g.ritaucpf);
    ui_->mskCarteiraR->setText(g.ritaucart.trimmed());
    ui_->txtI1R->setText(g.ritaui1);
    ui_->txtI2R->setText(g.ritaui2);
    ui_->cmbEspecieR->setCurrentText(
        entradaDaEspecie(QStringLiteral("409"), g.ritauespNulo ? QStringLiteral("DM") : g.ritauesp));
    ui_->txtNomeR->setText(QStringLiteral("SANTR"));
    ui_->tdbDatagR->setData(QDate::currentDate());

    Recordset bal = cn_.Execute(QStringLiteral("SELECT * FROM RbalRec"));
    ui_->tdbMesano->setData(!bal.eof() && !bal[QStringLiteral("mesbase")].isNull() ? bal[QStringLiteral("mesbase")].toDate()
                                                                                   : QDate(2004, 1, 1));
    if (!bal.eof()) {
        const int modelo = bal[QStringLiteral("modelo")].text().toInt();
        if (modelo == 1 || modelo == 2)
            ui_->cmbModelo->setCurrentIndex(modelo - 1);
        ui_->txtTitulo->setText(bal[QStringLiteral("titulo")].text());
        QLineEdit *extras[4] = {ui_->txtLinAdic1, ui_->txtLinAdic2, ui_->txtLinAdic3, ui_->txtLinAdic4};
        for (int n = 0; n < 4; ++n)
            extras[n]->setText(bal[QStringLiteral("LinAdic%1").arg(n + 1)].text());
        if (!bal[QStringLiteral("arqway")].text().isEmpty())
            session.arqway = bal[QStringLiteral("arqway")].text();
    }
    ui_->lblTextoSelecionado->setText(session.arqway);
}

frmBcoSantander::~frmBcoSantander()
{
    marcaFechando(*this);
    if (cn_.State() == 1)
        cn_.Close();
}

void frmBcoSantander::mskCarteiraR_Change()
{
    const QString carteira = ui_->mskCarteiraR->textoMascarado();
    // Judged once the three places are typed.
    if (carteira.contains(u'_') || carteira == u"102" || carteira == u"101")
        return;
    MsgBox(QStringLiteral("Esta versão somente cria arquivo de remessa para carteiras 101 e 102 ! "), vbOKOnly, kAtencao);
}

void frmBcoSantander::mskNnumero_Change()
{
    // The account has six places: its left five, as the print's check takes them
    // (filled to five, six digits would be refused).
    ui_->lblDacR->setText(Modulo10(ZeroEsq(ui_->txtCodAgR->text(), 4) + ZeroEsq(ui_->mskCcR->textoPuro().left(5), 5)
                                   + ZeroEsq(ui_->mskCarteiraR->textoPuro(), 3) + ui_->mskNnumero->textoPuro()));
}

void frmBcoSantander::cmdGravaR_Click()
{
    const QString especie = codigoEspecie(QStringLiteral("409"), ui_->cmbEspecieR->currentText());
    cn_.Execute(QStringLiteral("UPDATE Parametros Set RitauAg = '") + ui_->txtCodAgR->text() + QStringLiteral("',")
                + QStringLiteral("RitauCc = '") + ui_->mskCcR->textoPuro() + QStringLiteral("',") + QStringLiteral("RitauCd = '")
                + ui_->txtCedenteR->text() + QStringLiteral("',") + QStringLiteral("RitauCgc = '")
                + ui_->mskCgcR->textoMascarado() + QStringLiteral("',") + QStringLiteral("RitauCpf = '")
                + ui_->mskCpfR->textoMascarado() + QStringLiteral("',") + QStringLiteral("RitauCart = '")
                + ui_->mskCarteiraR->textoPuro() + QStringLiteral("',") + QStringLiteral("RitauNn = '")
                + ui_->mskNnumero->textoPuro() + QStringLiteral("',") + QStringLiteral("RitauEsp = '") + especie
                + QStringLiteral("',") + QStringLiteral("Ritaui1 = '") + ui_->txtI1R->text() + QStringLiteral("',")
                + QStringLiteral("Ritaui2 = '") + ui_->txtI2R->text() + QStringLiteral("'")
                + QStringLiteral(" Where codigo = 1"));
}

void frmBcoSantander::cmdImprimir_Click()
{
    const QString carteira = ui_->mskCarteiraR->textoPuro();
    if (carteira != u"102") {
        MsgBox(QStringLiteral("A Carteira tem de ser 102 !"), vbOKOnly, QStringLiteral("Atenção ..."));
        return;
    }
    const QString numero = ZeroEsq(ui_->txtNrRecibo->text(), 6);
    Recordset conta = cn_.Execute(QStringLiteral("SELECT COUNT(*) as i FROM recibos WHERE codigo = '") + numero
                                  + QStringLiteral("'"));
    if (conta.eof() || val(conta[QStringLiteral("i")].text()) <= 0) {
        MsgBox(QStringLiteral("Não há recibos selecionados !"), vbOKOnly, kAtencao);
        return;
    }
    Recordset rec = cn_.Execute(QStringLiteral("SELECT * FROM recibos WHERE codigo = '") + numero + QStringLiteral("'"));
    const ReciboBanco r{rec[QStringLiteral("codigo")].text(), rec[QStringLiteral("vtotal")].toMoney(),
                        rec[QStringLiteral("dvencto")].toDate()};
    ParametrosBanco p;
    p.banco = QStringLiteral("353");
    p.agencia = ZeroEsq(ui_->txtCodAgR->text(), 4);
    p.cedente = ui_->mskCcR->textoPuro();
    p.carteira = carteira;
    const Boleto b = Banco353(r, p);
    ui_->mskNnumero->setText(b.nrbco.left(8));
    ui_->lblDacR->setText(b.dv);
    cn_.Execute(updateRecibosBanco(ui_->tdbDatagR->data(), b, QStringLiteral("353"), numero));

    Recordset lido = cn_.Execute(QStringLiteral("SELECT codigo,codap,dvencto,vtotal,lindigbco,barrabco,nrbco  FROM recibos "
                                                "WHERE situacao = 'A' AND codigo = '")
                                 + numero + QStringLiteral("' ORDER BY codigo "));
    if (lido.eof())
        return;   // a settled receipt: no slip
    if (lido[QStringLiteral("barrabco")].text().isEmpty() || lido[QStringLiteral("nrbco")].text().isEmpty()
        || lido[QStringLiteral("lindigbco")].text().isEmpty()) {
        MsgBox(QStringLiteral("Não foi gerado o arquivo de remessa deste recibo, confira !"), vbOKOnly, kAtencao);
        return;
    }
    // The slip of banks/boletoimpressao on BolRelSantander.rpt: the wallet of
    // the form, the account in six places and five instruction lines.
    ParametrosImpressao impressao;
    impressao.banco = QStringLiteral("353");
    impressao.dataProc = ui_->tdbDatagR->data();
    impressao.titulo = ui_->txtTitulo->text();
    Recordset instru = cn_.Execute(QStringLiteral("SELECT * FROM Parametros WHERE codigo = 1"));
    for (int n = 0; n < 5 && !instru.eof(); ++n)
        impressao.instrucoes[size_t(n)] = instru[QStringLiteral("Instrubco%1").arg(n + 1)].text();
    leParametrosImpressao(cn_, impressao);
    impressao.carteira = carteira;
    impressao.conta = formatText(impressao.conta, QStringLiteral("@@@@@@"));
    mostraBoletos(montaBoletos(cn_, impressao, filtroUmRecibo(numero)));
}

void frmBcoSantander::cmdTrocatxt_Click()
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
    ui_->chkArqTexto->setChecked(true);
}

void frmBcoSantander::cmdCriaRel_Click()
{
    if (ui_->tdbMesano->text() == kEmptyMonthYear || !ui_->tdbMesano->data().isValid()
        || ui_->cmbModelo->currentIndex() < 0) {
        MsgBox(QStringLiteral("Você não determinou o mês/ano base e/ou o modelo do relatório"), vbOKOnly, kAtencao);
        return;
    }
    const bool arquivo = ui_->chkArqTexto->isChecked();
    if (arquivo && session.arqway.isEmpty()) {
        MsgBox(QStringLiteral("Você não selecionou nenhum arquivo texto, tente novamente !"));
        return;
    }
    const QStringList extras{ui_->txtLinAdic1->text(), ui_->txtLinAdic2->text(), ui_->txtLinAdic3->text(),
                             ui_->txtLinAdic4->text()};
    Ampulheta ampulheta;
    const int n = criaDemonstrativo(cn_, ui_->tdbMesano->data(), ui_->cmbModelo->currentIndex() + 1,
                                    ui_->txtTitulo->text(), extras, true, arquivo, session.arqway);
    ui_->lblDemonstrativo->setText(QStringLiteral("Demonstrativo criado: %1 linhas").arg(n));
}
