#include "billing/forms/frmPesqfin.h"

#include "billing/eventtot.h"
#include "billing/relatorios.h"
#include "core/conversions.h"
#include "core/prompter.h"
#include "core/session.h"
#include "core/widgets/keyboard.h"
#include "core/widgets/modal.h"
#include "reporting/imprime.h"
#include "ui_frmPesqfin.h"

static const QString kTitulo = QStringLiteral("Pesquisas Financeiras");

frmPesqfin::frmPesqfin(QWidget *parent) : QWidget(parent), ui_(std::make_unique<Ui::frmPesqfin>())
{
    ui_->setupUi(this);
    condicoes_ = std::make_unique<CondicoesFiltro>(this);
    ui_->tdbRecibos->modelo()->setTitulos(camposFiltro());
    ui_->tdbRecibos->modelo()->setColunaNumerica(0);
    ui_->optVl->setChecked(true);
    for (QRadioButton *o : {ui_->optEpE, ui_->optGaG, ui_->optVl})
        connect(o, &QRadioButton::clicked, this, [this] { ui_->chkTotal->setEnabled(true); });
    connect(ui_->optVt, &QRadioButton::clicked, this, [this] {
        ui_->chkTotal->setChecked(true);
        ui_->chkTotal->setEnabled(false);
    });
    connect(ui_->cmdPesquisar, &QPushButton::clicked, this, &frmPesqfin::cmdPesquisar_Click);
    connect(ui_->cmdImprimir, &QPushButton::clicked, this, &frmPesqfin::cmdImprimir_Click);
    connect(ui_->cmdSair, &QPushButton::clicked, this, [this] { fechaForm(*this); });
    aplicaTeclado(*this);

    cn_.ConnectionTimeout = 100;
    cn_.Open(session.conAtiva);
}

frmPesqfin::~frmPesqfin()
{
    if (rs_.State() == 1)
        rs_.Close();
    if (cn_.State() == 1)
        cn_.Close();
}

void frmPesqfin::cmdPesquisar_Click()
{
    const Filtro f = condicoes_->filtro();
    if (const auto falta = confereFiltro(f)) {
        MsgBox(*falta, vbExclamation, QStringLiteral("Atenção !"));
        return;
    }
    Ampulheta ampulheta;
    const QString clausula = clausulaPesquisa(f);
    GradeModel *m = ui_->tdbRecibos->modelo();
    m->limpa();
    Recordset conta = cn_.Execute(sqlContaRecibos(clausula));
    if (conta.eof() || conta[QStringLiteral("I")].toInt() == 0) {
        ponteiroNormal();
        MsgBox(QStringLiteral("Não há recibos para esta condição !"), vbExclamation, QStringLiteral("Atenção !"));
        return;
    }
    Recordset rs = cn_.Execute(sqlListaRecibos(clausula));
    while (!rs.eof()) {
        m->adiciona({rs[QStringLiteral("codigo")].text(), rs[QStringLiteral("codap")].text(),
                     rs[QStringLiteral("TipCob")].text(), rs[QStringLiteral("demis")].text(),
                     rs[QStringLiteral("dvencto")].text(), rs[QStringLiteral("drecbto")].text(),
                     formatMoney(rs[QStringLiteral("vtotal")].toMoney(), QStringLiteral("###,###,##0.00"))});
        rs.moveNext();
    }
    ui_->tdbRecibos->ajustaColunas();
}

// The model of the print chosen, as the templates read it.
QString frmPesqfin::modelo() const
{
    if (ui_->optEpE->isChecked())
        return QStringLiteral("E");
    if (ui_->optGaG->isChecked())
        return QStringLiteral("G");
    if (ui_->optVt->isChecked())
        return QStringLiteral("T");
    return QStringLiteral("L");
}

void frmPesqfin::cmdImprimir_Click()
{
    const Filtro f = condicoes_->filtro();
    if (const auto falta = confereFiltro(f)) {
        MsgBox(*falta, vbExclamation, QStringLiteral("Atenção !"));
        return;
    }
    const QString sql = sqlImpressao(f);
    long quantos = 0;
    Money total;
    {
        Recordset rs = cn_.Execute(sql);
        for (; !rs.eof(); rs.moveNext()) {
            ++quantos;
            total += rs[QStringLiteral("vtotal")].toMoney();
        }
    }
    if (quantos == 0) {
        MsgBox(QStringLiteral("Não há valores na condição especificada !"), vbExclamation, QStringLiteral("Erro"));
        return;
    }
    const QString titu = tituloSituacao(f.situacao) + QStringLiteral(" - ordem: ")
        + (f.ordem.isEmpty() ? camposFiltro().first() : f.ordem);
    const ReportFormulas formulas{{QStringLiteral("Titu"), titu},
                                  {QStringLiteral("Tot"), QString::number(quantos)},
                                  {QStringLiteral("VTotal"), formatMoney(total, QStringLiteral("#,###,##0.00"))},
                                  {QStringLiteral("Modelo"), modelo()}};
    const QString modeloRpt = f.ordem == QLatin1String("Apartamento") ? QStringLiteral("RFinanc2.rpt")
                                                                       : QStringLiteral("RFinanc.rpt");
    ImprimeRelatorio(cn_, rs_, sql,
                     {QStringLiteral("codigo"), QStringLiteral("demis"), QStringLiteral("dvencto"),
                      QStringLiteral("drecbto"), QStringLiteral("vtotal"), QStringLiteral("tipcob"),
                      QStringLiteral("CodAp"), QStringLiteral("Nome")},
                     modeloRpt, kTitulo, formulas);
    if (!ui_->chkTotal->isChecked())
        return;
    {
        Ampulheta ampulheta;
        encheEventtot(cn_, clausulaImpressao(f));
    }
    // Group by group, the totals come in the order of their types.
    const QString eventos = modelo() == QLatin1String("G") ? QStringLiteral("SELECT * FROM Eventtot ORDER BY tipo, codigo")
                                                           : QStringLiteral("SELECT * FROM Eventtot ORDER BY codigo");
    ImprimeRelatorio(cn_, rs_, eventos,
                     {QStringLiteral("codigo"), QStringLiteral("nome"), QStringLiteral("tipo"), QStringLiteral("valortot")},
                     QStringLiteral("FinTot.rpt"), kTitulo, formulas);
}
