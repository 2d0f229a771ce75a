#include "banks/forms/filtrobanco.h"

#include "banks/forms/impressaoboletos.h"
#include "core/conversions.h"
#include "core/prompter.h"
#include "core/session.h"
#include "core/val.h"
#include "core/widgets/datefield.h"
#include "core/widgets/grade.h"
#include "core/widgets/keyboard.h"
#include "core/widgets/modal.h"
#include "core/widgets/numberfield.h"
#include "ui_frmFiltroBco.h"
#include "ui_frmFiltroImpBoleto.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

namespace {
QString dataTexto(const Field &f)
{
    return f.isNull() ? QString() : f.toDate().toString(QStringLiteral("dd/MM/yyyy"));
}

QString valorTexto(const Field &f) { return formatMoney(f.toMoney(), QStringLiteral("###,##0.00")); }
}

FiltroRecibosBanco::FiltroRecibosBanco(QWidget *parent) : QWidget(parent) {}

FiltroRecibosBanco::~FiltroRecibosBanco()
{
    marcaFechando(*this);
    if (cn_.State() == 1)
        cn_.Close();
}

template <typename T> T *FiltroRecibosBanco::c(const char *nome) const
{
    return findChild<T *>(QString::fromLatin1(nome));
}

void FiltroRecibosBanco::liga()
{
    tdbPesq_ = c<Grade>("tdbPesq");
    tdbPesq_->modelo()->setTitulos(titulos());
    tdbPesq_->modelo()->setColunaNumerica(0);
    const QList<CampoSelecao> &campos = camposSelecao();
    for (int n = 0; n < campos.size(); ++n) {
        c<QComboBox>("cmbCampo")->addItem(campos[n].titulo);
        if (n + 1 < campos.size())
            c<QComboBox>("cmbOrdem")->addItem(campos[n].titulo);
    }
    for (const char *d : {"tdbDe", "tdbAt"}) {
        c<DateField>(d)->setMinimo(QDate(1990, 1, 31));
        c<DateField>(d)->setMaximo(QDate(2008, 12, 31));
    }
    // The first limit is copied to the second when that one is empty.
    aoPerderFoco(c<QWidget>("txtDe"), [this] {
        if (c<QLineEdit>("txtAt")->text().isEmpty())
            c<QLineEdit>("txtAt")->setText(c<QLineEdit>("txtDe")->text());
    });
    aoPerderFoco(c<QWidget>("tdnDe"), [this] {
        if (c<QLineEdit>("tdnAt")->text().isEmpty())
            c<QLineEdit>("tdnAt")->setText(c<QLineEdit>("tdnDe")->text());
    });
    aoPerderFoco(c<QWidget>("tdbDe"), [this] {
        if (c<DateField>("tdbAt")->vazio())
            c<DateField>("tdbAt")->setData(c<DateField>("tdbDe")->data());
    });
    connect(c<QComboBox>("cmbCampo"), &QComboBox::currentIndexChanged, this, &FiltroRecibosBanco::cmbCampo_Click);
    connect(c<QPushButton>("cmdSelRec"), &QPushButton::clicked, this, &FiltroRecibosBanco::cmdSelRec_Click);
    connect(c<QPushButton>("cmdFiltroSalvo"), &QPushButton::clicked, this, &FiltroRecibosBanco::cmdFiltroSalvo_Click);
    connect(c<QPushButton>("cmdLimpaPesq"), &QPushButton::clicked, this, &FiltroRecibosBanco::cmdLimpaPesq_Click);
    connect(c<QPushButton>("cmdSair"), &QPushButton::clicked, this, [this] { fechaForm(*this); });
    aplicaTeclado(*this);
    cn_.Open(session.conAtiva);
    cmbCampo_Click();
}

QStringList FiltroRecibosBanco::recibos() const
{
    QStringList r;
    for (int n = 0; n < tdbPesq_->linhas(); ++n)
        r << tdbPesq_->texto(n, 0);
    return r;
}

void FiltroRecibosBanco::cmbCampo_Click()
{
    const TipoLimite tipo = camposSelecao().value(c<QComboBox>("cmbCampo")->currentIndex()).tipo;
    for (const char *n : {"txtDe", "txtAt"}) {
        c<QWidget>(n)->setVisible(tipo == TipoLimite::Texto);
        if (tipo != TipoLimite::Texto)
            c<QLineEdit>(n)->clear();
    }
    for (const char *n : {"tdnDe", "tdnAt"}) {
        c<QWidget>(n)->setVisible(tipo == TipoLimite::Numero);
        if (tipo != TipoLimite::Numero)
            c<QLineEdit>(n)->clear();
    }
    for (const char *n : {"tdbDe", "tdbAt"}) {
        c<QWidget>(n)->setVisible(tipo == TipoLimite::Data);
        if (tipo != TipoLimite::Data)
            c<DateField>(n)->limpa();
    }
}

void FiltroRecibosBanco::mostra(const QString &contagem, const QString &lista)
{
    Ampulheta ampulheta;
    tdbPesq_->modelo()->limpa();
    c<QLabel>("lblContagem")->clear();
    Recordset conta = cn_.Execute(contagem);
    const qint64 quantos = conta.eof() ? 0 : qint64(val(conta.fieldAt(0).text()));
    if (quantos <= 0) {
        ponteiroNormal();
        MsgBox(QStringLiteral("Atenção, não existem prestações cadastradas nesta condição !"));
        return;
    }
    for (Recordset rs = cn_.Execute(lista); !rs.eof(); rs.moveNext())
        tdbPesq_->modelo()->adiciona(linha(rs));
    tdbPesq_->ajustaColunas();
    c<QLabel>("lblContagem")->setText(QString::number(tdbPesq_->linhas()) + QStringLiteral(" recibo(s) na seleção"));
}

void FiltroRecibosBanco::cmdSelRec_Click()
{
    FiltroSelecao f;
    f.campo = c<QComboBox>("cmbCampo")->currentIndex();
    switch (camposSelecao().value(f.campo).tipo) {
    case TipoLimite::Texto:
        f.de = c<QLineEdit>("txtDe")->text();
        f.ate = c<QLineEdit>("txtAt")->text();
        break;
    case TipoLimite::Numero:
        f.de = c<QLineEdit>("tdnDe")->text();
        f.ate = c<QLineEdit>("tdnAt")->text();
        break;
    case TipoLimite::Data:
        f.de = c<QLineEdit>("tdbDe")->text();
        f.ate = c<QLineEdit>("tdbAt")->text();
        break;
    }
    f.situacao = c<QRadioButton>("optA")->isChecked()   ? Situacao::Abertos
                 : c<QRadioButton>("optB")->isChecked() ? Situacao::Baixados
                                                        : Situacao::Todos;
    f.reemite = c<QCheckBox>("chkReemite")->isChecked();
    f.ordem = c<QComboBox>("cmbOrdem")->currentIndex();
    const QString where = whereSelecao(f);
    mostra(sqlContagemSelecao(where), sqlLista(where));
}

// The filter frmFiltro kept: its count and list statements run as they stand;
// the list is read again with the payers' names by the receipts it found.
void FiltroRecibosBanco::cmdFiltroSalvo_Click()
{
    Recordset rs = cn_.Execute(QStringLiteral("SELECT ppfrase, ppfrase1 FROM Parametros Where Codigo = 1"));
    const QString lista = rs.eof() ? QString() : rs[QStringLiteral("ppfrase")].text().trimmed();
    const QString conta = rs.eof() ? QString() : rs[QStringLiteral("ppfrase1")].text().trimmed();
    if (lista.isEmpty() || conta.isEmpty()) {
        MsgBox(QStringLiteral("Não há filtro gravado, utilize o botão [Selecionar Recibos] !"), vbOKOnly,
               QStringLiteral("Atenção..."));
        return;
    }
    QStringList codigos;
    for (Recordset r = cn_.Execute(lista); !r.eof(); r.moveNext())
        codigos << QStringLiteral("'") + r[QStringLiteral("codigo")].text() + QStringLiteral("'");
    const QString where = codigos.isEmpty() ? QStringLiteral(" WHERE recibos.codigo IS NULL")
                                            : QStringLiteral(" WHERE recibos.codigo IN (") + codigos.join(u',')
                                                  + QStringLiteral(") ORDER BY Recibos.codigo");
    mostra(conta, sqlLista(where));
}

void FiltroRecibosBanco::cmdLimpaPesq_Click()
{
    tdbPesq_->modelo()->limpa();
    c<QLabel>("lblContagem")->clear();
    for (const char *n : {"txtDe", "txtAt", "tdnDe", "tdnAt"})
        c<QLineEdit>(n)->clear();
    c<DateField>("tdbDe")->limpa();
    c<DateField>("tdbAt")->limpa();
}

frmFiltroBco::frmFiltroBco(QWidget *parent) : FiltroRecibosBanco(parent)
{
    Ui::frmFiltroBco().setupUi(this);
    liga();
}

QString frmFiltroBco::sqlLista(const QString &where) const
{
    return QStringLiteral("SELECT Recibos.codigo,Recibos.codigo,Recibos.nrbco,Recibos.demis,Recibos.dvencto,"
                          "Recibos.drecbto,Recibos.codap,Recibos.tipcob,Recibos.vtotal,Recibos.lindigbco,"
                          "Recibos.barrabco,Recibos.nrbco,Aptos.nome FROM Recibos INNER JOIN Aptos ON Recibos.codap = "
                          "Aptos.Codigo")
           + where;
}

QStringList frmFiltroBco::titulos() const
{
    return {QStringLiteral("Recibo"), QStringLiteral("Nosso Nr."), QStringLiteral("Emissão"), QStringLiteral("Vencto"),
            QStringLiteral("Recbto"), QStringLiteral("Apto."), QStringLiteral("Tipo Cob."), QStringLiteral("Valor"),
            QStringLiteral("Proprietário"), QStringLiteral("Linha Digitável")};
}

QStringList frmFiltroBco::linha(const Recordset &rs) const
{
    // The statement names some columns twice: read by position.
    return {rs.fieldAt(0).text(), rs.fieldAt(2).text(), dataTexto(rs.fieldAt(3)), dataTexto(rs.fieldAt(4)),
            dataTexto(rs.fieldAt(5)), rs.fieldAt(6).text(), rs.fieldAt(7).text(), valorTexto(rs.fieldAt(8)),
            rs.fieldAt(12).text(), rs.fieldAt(9).text()};
}

frmFiltroImpBoleto::frmFiltroImpBoleto(QWidget *parent) : FiltroRecibosBanco(parent)
{
    Ui::frmFiltroImpBoleto().setupUi(this);
    liga();
    connect(findChild<QPushButton *>(QStringLiteral("cmdImprTot")), &QPushButton::clicked, this,
            &frmFiltroImpBoleto::cmdImprTot_Click);
}

QString frmFiltroImpBoleto::sqlLista(const QString &where) const { return sqlListaSelecao(where); }

QStringList frmFiltroImpBoleto::titulos() const
{
    return {QStringLiteral("Recibo"), QStringLiteral("Emissão"), QStringLiteral("Vencto"), QStringLiteral("Recbto"),
            QStringLiteral("Apto."), QStringLiteral("Proprietário"), QStringLiteral("Valor"), QStringLiteral("Bco"),
            QStringLiteral("Data Bco.")};
}

QStringList frmFiltroImpBoleto::linha(const Recordset &rs) const
{
    return {rs[QStringLiteral("codigo")].text(), dataTexto(rs[QStringLiteral("demis")]),
            dataTexto(rs[QStringLiteral("dvencto")]), dataTexto(rs[QStringLiteral("drecbto")]),
            rs[QStringLiteral("codap")].text(), rs[QStringLiteral("nome")].text(), valorTexto(rs[QStringLiteral("vtotal")]),
            rs[QStringLiteral("codbco")].text(), dataTexto(rs[QStringLiteral("demisbco")])};
}

// The slips of the listed receipts, with the bank parameters as they are kept.
void frmFiltroImpBoleto::cmdImprTot_Click()
{
    const QStringList lista = recibos();
    ParametrosImpressao p;
    Recordset par = cn_.Execute(QStringLiteral("SELECT * FROM Parametros WHERE codigo = 1"));
    if (!par.eof()) {
        p.banco = par[QStringLiteral("RBanco")].text();
        for (int n = 0; n < 6; ++n)
            p.instrucoes[size_t(n)] = par[QStringLiteral("Instrubco%1").arg(n + 1)].text();
    }
    p.dataProc = QDate::currentDate();
    leParametrosImpressao(cn_, p);
    QStringList codigos;
    for (const QString &r : lista)
        codigos << QStringLiteral("'") + r + QStringLiteral("'");
    const QString filtro = lista.isEmpty() ? QString()
                                           : QStringLiteral(" WHERE recibos.situacao = 'A' AND recibos.codigo IN (")
                                                 + codigos.join(u',') + QStringLiteral(") ORDER BY recibos.codigo ");
    Ampulheta ampulheta;
    ImpressaoBoletos impressao;
    if (imprimeSelecaoBoletos(cn_, p, filtro, impressao) == FimImpressaoBoleto::Pronto)
        mostraBoletos(impressao);
}
