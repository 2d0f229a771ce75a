#include "accounting/forms/frmRLanctos.h"

#include "accounting/lancamentos.h"
#include "core/conversions.h"
#include "core/prompter.h"
#include "core/session.h"
#include "core/widgets/datefield.h"
#include "core/widgets/keyboard.h"
#include "core/widgets/modal.h"
#include "reporting/imprime.h"
#include "ui_frmRLanctos.h"

#include <QCloseEvent>

namespace {

// The order combo's texts and what each puts after ORDER BY; any other text
// (an empty combo too) sorts by the entry's number.
const QList<QPair<QString, QString>> kOrdens{
    {QStringLiteral("Código"), QStringLiteral("codauto")},
    {QStringLiteral("Data de Lançamento"), QStringLiteral("datalan")},
    {QStringLiteral("Data e Débito"), QStringLiteral("datalan, ctadeb")},
    {QStringLiteral("Data e Crédito"), QStringLiteral("datalan, ctacre")},
    {QStringLiteral("Data e valor"), QStringLiteral("datalan, vlrlan")},
    {QStringLiteral("Nr.Documento"), QStringLiteral("nrdoc")},
};

QString colunasDaOrdem(const QString &texto)
{
    for (const auto &[nome, colunas] : kOrdens)
        if (nome == texto)
            return colunas;
    return QStringLiteral("codauto");
}

} // namespace

frmRLanctos::frmRLanctos(QWidget *parent) : QWidget(parent), ui_(new Ui::frmRLanctos)
{
    ui_->setupUi(this);
    for (const auto &ordem : kOrdens)
        ui_->cmbOrdem->addItem(ordem.first);
    ui_->cmbOrdem->setCurrentIndex(-1);
    connect(ui_->cmdImprimir, &QPushButton::clicked, this, &frmRLanctos::cmdImprimir_Click);
    connect(ui_->cmdSair, &QPushButton::clicked, this, [this] { fechaForm(*this); });
    aplicaTeclado(*this);
    cn_.ConnectionTimeout = 100;
    cn_.Open(session.conAtiva);
}

frmRLanctos::~frmRLanctos()
{
    marcaFechando(*this);
    if (cn_.State() == 1)
        cn_.Close();
}

void frmRLanctos::cmdImprimir_Click()
{
    DateField *inicio = ui_->tdbInicio, *fim = ui_->tdbFim;
    // Each year has its own table, so a period cannot cross a year.
    if (inicio->textoMascarado() == kEmptyDate || fim->textoMascarado() == kEmptyDate
        || inicio->data().year() != fim->data().year()) {
        MsgBox(QStringLiteral("Determine o Período dos Lançamentos"), vbCritical, QStringLiteral("Atenção"));
        ponteiroNormal();
        inicio->setFocus();
        return;
    }
    const QString ano = QString::number(inicio->data().year());
    if (!existeTabelaAno(cn_, tabelaDoAno(ano))) {
        MsgBox(semTabelaDoAno(ano), vbCritical, QStringLiteral("Atenção"));
        inicio->setFocus();
        return;
    }
    const QString titulo = ui_->txtTitu->text();
    const bool impresso = ImprimeRelatorio(
        cn_, rs_,
        QStringLiteral("SELECT * FROM ") + tabelaDoAno(ano) + QStringLiteral(" WHERE datalan BETWEEN #")
            + formatDate(inicio->data(), QStringLiteral("mm/dd/yyyy")) + QStringLiteral("# AND #")
            + formatDate(fim->data(), QStringLiteral("mm/dd/yyyy")) + QStringLiteral("#") + QStringLiteral(" ORDER BY ")
            + colunasDaOrdem(ui_->cmbOrdem->currentText()),
        {QStringLiteral("codauto"), QStringLiteral("datalan"), QStringLiteral("ctadeb"), QStringLiteral("ctacre"),
         QStringLiteral("nrdoc"), QStringLiteral("histlan"), QStringLiteral("vlrlan")},
        QStringLiteral("Rlanca.rpt"), titulo,
        {{QStringLiteral("Titu"), titulo},
         {QStringLiteral("Periodo"), inicio->textoMascarado() + QStringLiteral(" a ") + fim->textoMascarado()}},
        [](const Recordset &r) {
            return QStringList{r[QStringLiteral("codauto")].text(),
                               formatDate(r[QStringLiteral("datalan")].toDate(), QStringLiteral("dd/mm/yyyy")),
                               r[QStringLiteral("ctadeb")].text(), r[QStringLiteral("ctacre")].text(),
                               r[QStringLiteral("nrdoc")].text(),  r[QStringLiteral("histlan")].text(),
                               r[QStringLiteral("vlrlan")].text()};
        });
    if (!impresso) {
        MsgBox(QStringLiteral("Não há valores na condição especificada !"), vbCritical, QStringLiteral("Erro"));
        inicio->setFocus();
    }
}

void frmRLanctos::closeEvent(QCloseEvent *event)
{
    marcaFechando(*this);
    if (cn_.State() == 1)
        cn_.Close();
    event->accept();
}
