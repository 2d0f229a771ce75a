#include "accounting/forms/frmRRazao.h"

#include "accounting/forms/relcontabil.h"
#include "accounting/lancamentos.h"
#include "accounting/mensal.h"
#include "accounting/razao.h"
#include "core/conversions.h"
#include "core/errors.h"
#include "core/prompter.h"
#include "core/session.h"
#include "core/widgets/datefield.h"
#include "core/widgets/keyboard.h"
#include "core/widgets/modal.h"
#include "reporting/imprime.h"
#include "ui_frmRRazao.h"

#include <QCloseEvent>

frmRRazao::frmRRazao(QWidget *parent) : QWidget(parent), ui_(new Ui::frmRRazao)
{
    ui_->setupUi(this);
    ui_->tdbAno->setFormato(DateField::Ano);
    ligaMesOuPeriodo(ui_->optM, ui_->optP, ui_->txtMesini, ui_->txtMesfin);
    connect(ui_->cmdImprimir, &QPushButton::clicked, this, &frmRRazao::cmdImprimir_Click);
    connect(ui_->cmdSair, &QPushButton::clicked, this, [this] { fechaForm(*this); });
    aplicaTeclado(*this);

    cn_.ConnectionTimeout = 100;
    cn_.Open(session.conAtiva);
    const QDate base = mesBase(cn_);
    if (base.isValid()) {
        ui_->tdbAno->setData(base);
        ui_->txtMesini->setText(formatDate(base, QStringLiteral("mm")));
    }
    reiniciaContas();
}

frmRRazao::~frmRRazao()
{
    marcaFechando(*this);
    if (cn_.State() == 1)
        cn_.Close();
}

void frmRRazao::reiniciaContas()
{
    for (MaskEdit *conta : {ui_->mskCIni, ui_->mskCFim}) {
        conta->setMascara(QStringLiteral("##.###"));
        conta->setText(conta->textoVazio());
    }
}

void frmRRazao::cmdImprimir_Click()
{
    const QString mesIni = ui_->txtMesini->text(), mesFim = ui_->txtMesfin->text();
    // A month outside 1 to 12 would end the program on the dates; it is told.
    if (!mesValido(mesIni) || (!mesFim.trimmed().isEmpty() && valorMes(mesFim) != 0 && !mesValido(mesFim))) {
        MsgBox(kIndiqueMes, vbCritical, QStringLiteral("Atenção..."));
        ui_->txtMesini->selectAll();
        ui_->txtMesini->setFocus();
        return;
    }
    const QString ano = ui_->tdbAno->textoMascarado();
    if (!ui_->tdbAno->data().isValid() || !existeTabelaAno(cn_, tabelaDoAno(ano))) {
        MsgBox(ui_->tdbAno->data().isValid() ? semTabelaDoAno(ano) : QStringLiteral("Indique o ano base do relatório !"),
               vbCritical, QStringLiteral("Atenção..."));
        ui_->tdbAno->selectAll();
        ui_->tdbAno->setFocus();
        return;
    }

    Ampulheta ampulheta;
    RazaoPeriodo periodo;
    periodo.ano = ano;
    periodo.mesIni = mesIni;
    periodo.mesFim = mesFim;
    periodo.ctaIni = ui_->mskCIni->textoMascarado();
    periodo.ctaFim = ui_->mskCFim->textoMascarado();
    try {
        if (!EncheMovRazao(cn_, periodo))
            return;
    } catch (const RunFailure &e) {
        // The line number is a 16-bit counter: a long period does not fit.
        if (e.message() != QLatin1String("Estouro de capacidade"))
            throw;
        ponteiroNormal();
        MsgBox(QStringLiteral("O razão deste período passa de 32.767 linhas: escolha um período menor !"), vbCritical,
               QStringLiteral("Atenção..."));
        return;
    }
    if (!ui_->OptListA->isChecked())
        return;

    const int ini = valorMes(mesIni), fim = valorMes(mesFim) == 0 ? ini : valorMes(mesFim);
    const QDate primeiro(ano.toInt(), ini, 1), ultimo(ano.toInt(), fim, 1);
    const QString textoPeriodo = formatDate(primeiro, QStringLiteral("dd/mm/yyyy")) + QStringLiteral(" a ")
                                 + UltimoDia(ultimo) + formatDate(ultimo, QStringLiteral("/mm/yyyy"));
    const bool continuo = ui_->chkContinuo->isChecked();
    // The line number is text in MovRazao: the lines are read in its numeric
    // order (as text, line 10 would come before line 2), since the report
    // engine prints rows as they come.
    // Beyond the system's columns: the amount on its side (debito, credito;
    // empty on the opening line) for the sums, the balance without its sign
    // (tiposal says the side), and quebra, the account again when each
    // account starts a page of its own (not continuous).
    ImprimeRelatorio(
        cn_, rs_,
        QStringLiteral("SELECT MovRazao.*, Plano.nome FROM MovRazao INNER JOIN Plano ON MovRazao.cta = Plano.codigo ")
            + QStringLiteral(" ORDER BY val(movrazao.codigo)"),
        {QStringLiteral("conta"), QStringLiteral("nome"), QStringLiteral("datalan"), QStringLiteral("nrlan"),
         QStringLiteral("nrdoc"), QStringLiteral("histlan"), QStringLiteral("cpartida"), QStringLiteral("vlrlan"),
         QStringLiteral("tipolan"), QStringLiteral("saldo"), QStringLiteral("tiposal"), QStringLiteral("debito"),
         QStringLiteral("credito"), QStringLiteral("saldoValor"), QStringLiteral("quebra")},
        modeloPorImpressora(QStringLiteral("RRazao01_"), session.impressora), QStringLiteral("Razão"),
        {{QStringLiteral("Continuo"), continuo ? QStringLiteral("S") : QStringLiteral("N")},
         {QStringLiteral("Histlongo"), ui_->chkHistlongo->isChecked() ? QStringLiteral("S") : QStringLiteral("N")},
         {QStringLiteral("Periodo"), textoPeriodo}},
        [continuo](const Recordset &r) {
            const QString tipo = r[QStringLiteral("tipolan")].text(), valor = r[QStringLiteral("vlrlan")].text();
            const Money saldo = r[QStringLiteral("saldo")].toMoney();
            return QStringList{r[QStringLiteral("cta")].text(),
                               r[QStringLiteral("nome")].text(),
                               formatDate(r[QStringLiteral("datalan")].toDate(), QStringLiteral("dd/mm/yyyy")),
                               r[QStringLiteral("nrlan")].text(),
                               r[QStringLiteral("nrdoc")].text(),
                               r[QStringLiteral("histlan")].text(),
                               r[QStringLiteral("cpartida")].text(),
                               valor,
                               tipo,
                               r[QStringLiteral("saldo")].text(),
                               r[QStringLiteral("tiposal")].text(),
                               tipo == QLatin1String("D") ? valor : QString(),
                               tipo == QLatin1String("C") ? valor : QString(),
                               moneyText(saldo < Money() ? -saldo : saldo),
                               continuo ? QString() : r[QStringLiteral("cta")].text()};
        });
}

void frmRRazao::closeEvent(QCloseEvent *event)
{
    marcaFechando(*this);
    if (cn_.State() == 1)
        cn_.Close();
    event->accept();
}
