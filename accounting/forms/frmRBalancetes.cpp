#include "accounting/forms/frmRBalancetes.h"

#include "accounting/balancete.h"
#include "accounting/forms/relcontabil.h"
#include "accounting/mensal.h"
#include "core/conversions.h"
#include "core/prompter.h"
#include "core/session.h"
#include "core/widgets/datefield.h"
#include "core/widgets/keyboard.h"
#include "core/widgets/modal.h"
#include "reporting/imprime.h"
#include "ui_frmRBalancetes.h"

#include <QCloseEvent>

namespace {

const QString kSemDados =
    QStringLiteral("Não Há Dados Para Montagem do Relatório, Verifique Atualização de Saldos e Movimento");

const QString kValor = QStringLiteral("#,###,##0.00");

QString texto(Money m) { return moneyText(m); }

// The sum of a column of the work table's analytic rows of one type, rounded
// by the database as the special statement's result is.
Money somaAnaliticas(Connection &cn, const QString &coluna, const QString &tipo)
{
    Recordset rs = cn.Execute(QStringLiteral("SELECT ROUND(SUM(") + coluna + QStringLiteral("),2) AS total FROM RBalancete WHERE tipo = '")
                              + tipo + QStringLiteral("' AND sintetico = False"));
    return rs.eof() ? Money() : rs[QStringLiteral("total")].toMoney();
}

} // namespace

frmRBalancetes::frmRBalancetes(QWidget *parent) : QWidget(parent), ui_(new Ui::frmRBalancetes)
{
    ui_->setupUi(this);
    ui_->tdbAno->setFormato(DateField::Ano);
    ligaMesOuPeriodo(ui_->optM, ui_->optP, ui_->txtMesini, ui_->txtMesfin);
    connect(ui_->cmdImprime, &QPushButton::clicked, this, &frmRBalancetes::cmdImprime_Click);
    connect(ui_->cmdSair, &QPushButton::clicked, this, [this] { fechaForm(*this); });
    aplicaTeclado(*this);

    cn_.ConnectionTimeout = 100;
    cn_.Open(session.conAtiva);
    const QDate base = mesBase(cn_);
    if (base.isValid())
        ui_->tdbAno->setData(base);
}

frmRBalancetes::~frmRBalancetes()
{
    marcaFechando(*this);
    if (cn_.State() == 1)
        cn_.Close();
}

void frmRBalancetes::cmdImprime_Click()
{
    const bool periodo = ui_->optP->isChecked();
    const QString mesIni = ui_->txtMesini->text(), mesFim = ui_->txtMesfin->text();
    if (!mesValido(mesIni) || (periodo && !mesValido(mesFim))) {
        MsgBox(kIndiqueMes, vbCritical, QStringLiteral("Atenção..."));
        ui_->txtMesini->selectAll();
        ui_->txtMesini->setFocus();
        return;
    }
    if (periodo && valorMes(mesFim) < valorMes(mesIni)) {
        // The words say the opposite of the test; they are the system's.
        MsgBox(QStringLiteral("Mês final não pode ser superior ao mês inicial, corrija o período !"), vbCritical,
               QStringLiteral("Atenção..."));
        return;
    }
    const QString ano = anoDoRelatorio(ui_->tdbAno);
    if (ano.isEmpty())
        return;

    Ampulheta ampulheta;
    const QString prefixo = ui_->OptListA->isChecked() ? QStringLiteral("Balancete de ") : QStringLiteral("Prestação de Contas de ");
    if (ui_->optListD->isChecked()) {
        EncheRPcontas(cn_, mesIni, ano, ui_->chkIncluiSaldo->isChecked());
        imprimePctEspecial(ano);
        return;
    }
    // With an empty chart the fill tells so, and the print finds no rows.
    EncheRBalancete(cn_, mesIni, mesFim, periodo, ano);
    QString titulo = prefixo + NomeMes(valorMes(mesIni));
    if (periodo)
        titulo += QStringLiteral(" Até ") + NomeMes(valorMes(mesFim));
    imprimeBalancete(titulo + u'/' + ano);
}

// Balancete.rpt, Pct.rpt or PctPr.rpt from RBalancete. Beyond the system's
// columns each row carries what the templates print and sum and the engine
// cannot compute: the movement of the analytic rows (their sums are the
// totals; a synthetic row already sums its group), the result with revenue
// turned to the credit side, and the section the row prints in (revenue,
// expenses, and cash and banks when chkIncluiSaldo is ticked).
void frmRBalancetes::imprimeBalancete(const QString &titulo)
{
    const bool contabil = ui_->OptListA->isChecked();
    const bool caixa = ui_->chkIncluiSaldo->isChecked();
    const QString modelo = contabil ? QStringLiteral("Balancete.rpt")
                                    : ui_->OptListB->isChecked() ? QStringLiteral("Pct.rpt") : QStringLiteral("PctPr.rpt");
    QStringList colunas{QStringLiteral("Codigo"), QStringLiteral("Nome"),  QStringLiteral("Tipo"),
                        QStringLiteral("Classe"), QStringLiteral("Sintetico"), QStringLiteral("sante"),
                        QStringLiteral("debit"),  QStringLiteral("credit"), QStringLiteral("satual")};
    if (contabil)
        colunas << QStringLiteral("debitoA") << QStringLiteral("creditoA");
    else
        colunas << QStringLiteral("spct") << QStringLiteral("spo") << QStringLiteral("secao") << QStringLiteral("realizado")
                << QStringLiteral("realizadoA") << QStringLiteral("previstoA") << QStringLiteral("diferenca");

    ReportFormulas formulas{{QStringLiteral("Caixa"), caixa ? QStringLiteral("S") : QStringLiteral("N")},
                            {QStringLiteral("Titu"), titulo}};
    if (!contabil) {
        // Revenue less expenses of the period, revenue on the credit side.
        const Money resultado = -somaAnaliticas(cn_, QStringLiteral("spct"), QStringLiteral("R"))
                                - somaAnaliticas(cn_, QStringLiteral("spct"), QStringLiteral("D"));
        formulas << qMakePair(QStringLiteral("Resultado"), formatMoney(resultado, kValor));
    }
    auto linha = [contabil, caixa](const Recordset &r) {
        const bool sintetico = r[QStringLiteral("sintetico")].toBool();
        QStringList celulas{r[QStringLiteral("codigo")].text().trimmed(), r[QStringLiteral("nome")].text(),
                            r[QStringLiteral("tipo")].text(),             r[QStringLiteral("classe")].text(),
                            r[QStringLiteral("sintetico")].text(),        r[QStringLiteral("sini")].text(),
                            r[QStringLiteral("vdeb")].text(),             r[QStringLiteral("vcre")].text(),
                            r[QStringLiteral("sfin")].text()};
        if (contabil) {
            celulas << (sintetico ? QString() : r[QStringLiteral("vdeb")].text())
                    << (sintetico ? QString() : r[QStringLiteral("vcre")].text());
            return celulas;
        }
        const QString tipo = r[QStringLiteral("tipo")].text();
        QString secao;
        if (tipo == QLatin1String("R") || tipo == QLatin1String("D"))
            secao = tipo;
        else if (caixa && tipo == QLatin1String("C") && r[QStringLiteral("classe")].text() == QLatin1String("C"))
            secao = QStringLiteral("C");
        const Money resultado = r[QStringLiteral("spct")].toMoney();
        const Money realizado = tipo == QLatin1String("R") ? -resultado : resultado;
        const Money previsto = r[QStringLiteral("spo")].toMoney();
        celulas << r[QStringLiteral("spct")].text() << r[QStringLiteral("spo")].text() << secao << texto(realizado)
                << (sintetico ? QString() : texto(realizado)) << (sintetico ? QString() : texto(previsto))
                << texto(realizado - previsto);
        return celulas;
    };
    if (!ImprimeRelatorio(cn_, rs_, QStringLiteral("SELECT * FROM RBalancete"), colunas, modelo,
                          QStringLiteral("Balancetes Diversos"), formulas, linha)) {
        ponteiroNormal();
        MsgBox(kSemDados);
    }
}

// PctEspecial.rpt from RPcontas: revenue (turned by the fill), expenses and,
// when asked for, cash and banks. spctA and spoA repeat the analytic rows'
// figures for the sums.
void frmRBalancetes::imprimePctEspecial(const QString &ano)
{
    const Money resultado = ResultadoPctEspecial(cn_);
    const QStringList colunas{QStringLiteral("Codigo"), QStringLiteral("Nome"),  QStringLiteral("Tipo"),
                              QStringLiteral("Classe"), QStringLiteral("Sintetico"), QStringLiteral("sante"),
                              QStringLiteral("debit"),  QStringLiteral("credit"), QStringLiteral("satual"),
                              QStringLiteral("spct"),   QStringLiteral("spo"),   QStringLiteral("spctA"),
                              QStringLiteral("spoA")};
    const ReportFormulas formulas{
        {QStringLiteral("Titu"),
         QStringLiteral("Prestação de Contas de ") + NomeMes(valorMes(ui_->txtMesini->text())) + u'/' + ano},
        {QStringLiteral("Rpresult"), formatMoney(resultado, kValor)}};
    // sini is written on the cash rows only: the other rows have no sante.
    auto linha = [](const Recordset &r) {
        const bool sintetico = r[QStringLiteral("sintetico")].toBool();
        const QString tipo = r[QStringLiteral("tipo")].text();
        return QStringList{r[QStringLiteral("codigo")].text().trimmed(), r[QStringLiteral("nome")].text(),
                           tipo,                                         r[QStringLiteral("classe")].text(),
                           r[QStringLiteral("sintetico")].text(),
                           tipo == QLatin1String("C") ? r[QStringLiteral("sini")].text() : QString(),
                           r[QStringLiteral("vdeb")].text(),             r[QStringLiteral("vcre")].text(),
                           r[QStringLiteral("sfin")].text(),             r[QStringLiteral("spct")].text(),
                           r[QStringLiteral("spo")].text(),
                           sintetico ? QString() : r[QStringLiteral("spct")].text(),
                           sintetico ? QString() : r[QStringLiteral("spo")].text()};
    };
    if (!ImprimeRelatorio(cn_, rs_, QStringLiteral("SELECT * FROM RPcontas"), colunas, QStringLiteral("PctEspecial.rpt"),
                          QStringLiteral("Balancetes Diversos"), formulas, linha)) {
        ponteiroNormal();
        MsgBox(kSemDados);
    }
}

void frmRBalancetes::closeEvent(QCloseEvent *event)
{
    marcaFechando(*this);
    if (cn_.State() == 1)
        cn_.Close();
    event->accept();
}
