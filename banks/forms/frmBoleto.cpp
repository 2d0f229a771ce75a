#include "banks/forms/frmBoleto.h"

#include "accounting/balancete.h"
#include "banks/bcodiversos.h"
#include "banks/forms/boletos.h"
#include "banks/forms/impressaoboletos.h"
#include "banks/demonstrativo.h"
#include "core/conversions.h"
#include "core/extenso.h"
#include "core/prompter.h"
#include "core/session.h"
#include "core/val.h"
#include "core/widgets/keyboard.h"
#include "core/widgets/modal.h"
#include "reporting/imprime.h"
#include "ui_frmBoleto.h"

#include <QHash>

namespace {
const QString kAtencao = QStringLiteral("Atenção...");

QString dataTexto(const Field &f)
{
    return f.isNull() ? QString() : f.toDate().toString(QStringLiteral("dd/MM/yyyy"));
}
}

frmBoleto::frmBoleto(QWidget *parent) : QWidget(parent), ui_(std::make_unique<Ui::frmBoleto>())
{
    ui_->setupUi(this);
    ui_->tdbMesano->setFormato(DateField::MesAno);
    ui_->cmbModelo->addItem(kDemonstrativoModelo1);
    ui_->cmbModelo->addItem(kDemonstrativoModelo2);
    ui_->cmbModelo->setCurrentIndex(-1);
    ui_->tdbRecibos->modelo()->setTitulos({QStringLiteral("Recibo"), QStringLiteral("Apto."), QStringLiteral("Emissão"),
                                           QStringLiteral("Vencto"), QStringLiteral("Tipo Cob."), QStringLiteral("Recbto"),
                                           QStringLiteral("Valor")});
    ui_->tdbRecibos->modelo()->setColunaNumerica(0);
    connect(ui_->tdbRecibos, &Grade::linhaMudou, this,
            [this](int linha) { ui_->txtNrRecibo->setText(ui_->tdbRecibos->texto(linha, 0)); });
    connect(ui_->cmdCriaRel, &QPushButton::clicked, this, &frmBoleto::cmdCriaRel_Click);
    connect(ui_->cmdImprDemonst, &QPushButton::clicked, this, &frmBoleto::cmdImprDemonst_Click);
    connect(ui_->cmdImprimir, &QPushButton::clicked, this, &frmBoleto::cmdImprimir_Click);
    connect(ui_->cmdSair, &QPushButton::clicked, this, [this] { fechaForm(*this); });
    aplicaTeclado(*this);

    cn_.Open(session.conAtiva);
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
    }
    carregaRecibos();
}

frmBoleto::~frmBoleto()
{
    marcaFechando(*this);
    if (cn_.State() == 1)
        cn_.Close();
}

void frmBoleto::carregaRecibos()
{
    ui_->tdbRecibos->modelo()->limpa();
    Recordset conta = cn_.Execute(QStringLiteral("SELECT Count(codauto) As I FROM Recibos WHERE situacao = 'A'"));
    if (conta.eof() || val(conta[QStringLiteral("I")].text()) <= 0) {
        MsgBox(QStringLiteral("Atenção, não existem recibos cadastrados nesta condição, mude o filtro !"));
        return;
    }
    for (Recordset rs = cn_.Execute(QStringLiteral("SELECT codauto, codigo, codap, demis, dvencto, tipcob,drecbto,vtotal")
                                    + QStringLiteral(" FROM recibos WHERE situacao = 'A' ORDER BY codigo"));
         !rs.eof(); rs.moveNext())
        ui_->tdbRecibos->modelo()->adiciona(
            {rs[QStringLiteral("codigo")].text(), rs[QStringLiteral("codap")].text(), dataTexto(rs[QStringLiteral("demis")]),
             dataTexto(rs[QStringLiteral("dvencto")]), rs[QStringLiteral("tipcob")].text(),
             dataTexto(rs[QStringLiteral("drecbto")]),
             formatMoney(rs[QStringLiteral("vtotal")].toMoney(), QStringLiteral("###,##0.00"))});
    ui_->tdbRecibos->ajustaColunas();
}

void frmBoleto::cmdCriaRel_Click()
{
    if (ui_->tdbMesano->text() == kEmptyMonthYear || !ui_->tdbMesano->data().isValid()
        || ui_->cmbModelo->currentIndex() < 0) {
        MsgBox(QStringLiteral("Você não determinou o mês/ano base e/ou o modelo do relatório"), vbOKOnly, kAtencao);
        return;
    }
    const QDate mes = ui_->tdbMesano->data();
    const int modelo = ui_->cmbModelo->currentIndex() + 1;
    const QStringList extras{ui_->txtLinAdic1->text(), ui_->txtLinAdic2->text(), ui_->txtLinAdic3->text(),
                             ui_->txtLinAdic4->text()};
    Ampulheta ampulheta;
    const int n = criaDemonstrativo(cn_, mes, modelo, ui_->txtTitulo->text(), extras, false, false, QString());
    ui_->lblDemonstrativo->setText(QStringLiteral("Demonstrativo criado: %1 linhas").arg(n));
}

void frmBoleto::cmdImprDemonst_Click()
{
    ReportData d;
    d.columns = {QStringLiteral("Linha")};
    for (int n = 0; n < session.linhasDemonstrativo && n < int(session.demonstrativo.size()); ++n)
        d.rows.push_back({session.demonstrativo[size_t(n)]});
    d.title = ui_->txtTitulo->text();
    d.setFormula(QStringLiteral("Titu"), ui_->txtTitulo->text());
    MostraRelatorio(QStringLiteral("BalRec1.rpt"), std::move(d));
}

void frmBoleto::cmdImprimir_Click()
{
    const QString numero = ZeroEsq(ui_->txtNrRecibo->text(), 6);
    Recordset conta = cn_.Execute(QStringLiteral("SELECT COUNT(*) as i FROM recibos WHERE codigo = '") + numero
                                  + QStringLiteral("'"));
    if (conta.eof() || val(conta[QStringLiteral("i")].text()) <= 0) {
        MsgBox(QStringLiteral("Não há recibos selecionados !"), vbOKOnly, kAtencao);
        return;
    }
    QString itens = QStringLiteral("SELECT codigo,codap,dvencto,demis");
    for (const char *c : {"item", "comp", "refer", "valor"})
        for (int i = 0; i < 10; ++i)
            itens += QStringLiteral(",%1%2").arg(QString::fromLatin1(c)).arg(i);
    Recordset r = cn_.Execute(itens + QStringLiteral(",vtotal ") + QStringLiteral(" FROM recibos WHERE situacao = 'A' AND codigo = '")
                              + numero + QStringLiteral("' ORDER BY codigo "));
    if (r.eof())
        return;   // a settled receipt prints nothing

    ReportData d;
    d.columns = {QStringLiteral("NumDoc")};
    d.rows.push_back({numero});
    d.title = ui_->txtTitulo->text();
    for (int i = 0; i < 10; ++i) {
        const QString item = r[QStringLiteral("item%1").arg(i)].text();
        if (item.isEmpty())
            continue;
        Recordset ev = cn_.Execute(QStringLiteral("SELECT nome FROM Eventos WHERE codigo = '") + item + QStringLiteral("'"));
        d.setFormula(QStringLiteral("Dscri%1").arg(i), (ev.eof() ? QString() : ev[QStringLiteral("nome")].text().trimmed())
                                                           + QStringLiteral(" ") + r[QStringLiteral("comp%1").arg(i)].text());
        d.setFormula(QStringLiteral("Refer%1").arg(i), r[QStringLiteral("refer%1").arg(i)].text());
        d.setFormula(QStringLiteral("Valor%1").arg(i),
                     formatMoney(r[QStringLiteral("valor%1").arg(i)].toMoney(), QStringLiteral("#,###,##0.00")));
    }
    const Money vtotal = r[QStringLiteral("vtotal")].toMoney();
    Extenso(formatMoney(vtotal, QStringLiteral("0.00")));
    QuebraExtenso(90, 100);
    d.setFormula(QStringLiteral("Extenso1"), session.linhaExt1);
    d.setFormula(QStringLiteral("Extenso2"), session.linhaExt2);
    d.setFormula(QStringLiteral("Vencto"), dataTexto(r[QStringLiteral("dvencto")]));
    d.setFormula(QStringLiteral("DataDoc"), dataTexto(r[QStringLiteral("demis")]));
    d.setFormula(QStringLiteral("Valor"), formatMoney(vtotal, QStringLiteral("#,###,##0.00")));

    const QString codap = r[QStringLiteral("codap")].text();
    Recordset ap = cn_.Execute(QStringLiteral("SELECT nome,cpfpro,Enderecopro,Numeropro,Complementopro,Ceppro,bairropro,"
                                              "Cidadepro,Ufpro FROM Aptos WHERE codigo = '")
                               + codap + QStringLiteral("'"));
    const auto apto = [&](const char *c) { return ap.eof() ? QString() : ap[QString::fromLatin1(c)].text(); };
    d.setFormula(QStringLiteral("CodCli"), codap);
    d.setFormula(QStringLiteral("Nome"), apto("nome"));
    d.setFormula(QStringLiteral("End"), apto("Enderecopro"));
    d.setFormula(QStringLiteral("EndNum"), apto("Numeropro"));
    d.setFormula(QStringLiteral("EndComp"), apto("Complementopro"));
    const QString cep = apto("Ceppro"), cpf = apto("cpfpro");
    d.setFormula(QStringLiteral("Cep"), cep == u"_____-___" ? QString() : cep);
    d.setFormula(QStringLiteral("Cpf"), cpf == u"___.___.___-__" ? QString() : cpf);
    d.setFormula(QStringLiteral("Bairro"), apto("bairropro"));
    d.setFormula(QStringLiteral("Cid"), apto("Cidadepro"));
    d.setFormula(QStringLiteral("Uf"), apto("Ufpro"));

    Recordset frase = cn_.Execute(QStringLiteral("SELECT ppfrase, ppfrase1 FROM Parametros Where Codigo = 1"));
    d.setFormula(QStringLiteral("Msg"), frase.eof() ? QString() : frase[QStringLiteral("ppfrase")].text());
    Recordset par = cn_.Execute(QStringLiteral("SELECT RitauCd,RitauAg,RitauCc,RitauCart,ritaunn FROM Parametros Where Codigo = 1"));
    if (!par.eof()) {
        d.setFormula(QStringLiteral("Cedente"), par[QStringLiteral("RitauCd")].text());
        d.setFormula(QStringLiteral("AgConta"), par[QStringLiteral("RitauAg")].text() + QStringLiteral("/")
                                                    + par[QStringLiteral("RitauCc")].text());
        d.setFormula(QStringLiteral("Carteira"), par[QStringLiteral("RitauCart")].text());
        d.setFormula(QStringLiteral("NossoNr"), par[QStringLiteral("ritaunn")].text());
    }
    d.setFormula(QStringLiteral("CodBarra"), QStringLiteral(" "));
    Recordset instru = cn_.Execute(QStringLiteral("SELECT * FROM Parametros WHERE codigo = 1"));
    for (int n = 1; n <= 6 && !instru.eof(); ++n)
        d.setFormula(QStringLiteral("Instru%1").arg(n), instru[QStringLiteral("Instrubco%1").arg(n)].text());
    d.setFormula(QStringLiteral("DataProc"), QDate::currentDate().toString(QStringLiteral("dd/MM/yyyy")));
    d.setFormula(QStringLiteral("Titu"), ui_->txtTitulo->text());
    demonstrativoNoRelatorio(d);
    MostraRelatorio(QStringLiteral("BalRec.rpt"), std::move(d));
}
