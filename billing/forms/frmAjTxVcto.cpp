#include "billing/forms/frmAjTxVcto.h"

#include "billing/ajuste.h"
#include "billing/recibo.h"
#include "core/prompter.h"
#include "core/session.h"
#include "core/widgets/keyboard.h"
#include "core/widgets/modal.h"
#include "ui_frmAjTxVcto.h"

#include <QHeaderView>

namespace {
constexpr int kColunas = 8;
constexpr int kPrimeiraDigitada = 3;
} // namespace

frmAjTxVcto::frmAjTxVcto(QWidget *parent) : QWidget(parent), ui_(std::make_unique<Ui::frmAjTxVcto>())
{
    ui_->setupUi(this);
    layout()->setSizeConstraint(QLayout::SetMinimumSize);  // the grid of types shows its eight columns
    QTableWidget *g = ui_->tdgAjuste;
    g->setColumnCount(kColunas);
    g->setHorizontalHeaderLabels({QStringLiteral("Código"), QStringLiteral("Descrição"), QStringLiteral("Rateio"),
                                  QStringLiteral("T.Condominial"), QStringLiteral("Cabina"), QStringLiteral("F.Reserva"),
                                  QStringLiteral("Normal"), QStringLiteral("Aposentado:")});
    g->verticalHeader()->hide();
    g->setSelectionMode(QAbstractItemView::SingleSelection);

    connect(ui_->cmdAjustar, &QPushButton::clicked, this, &frmAjTxVcto::cmdAjustar_Click);
    connect(ui_->cmdAjTipAp, &QPushButton::clicked, this, &frmAjTxVcto::cmdAjTipAp_Click);
    connect(ui_->cmdRecalT, &QPushButton::clicked, this, &frmAjTxVcto::cmdRecalT_Click);
    connect(ui_->cmdSair, &QPushButton::clicked, this, &frmAjTxVcto::cmdSair_Click);
    aplicaTeclado(*this);

    // Load: the apartment types, columns 3 to 7 left for the clerk.
    cn_.ConnectionTimeout = 100;
    cn_.Open(session.conAtiva);
    Recordset conta = cn_.Execute(QStringLiteral("SELECT Count(codigo) As I FROM tpap"));
    g->setRowCount(int(conta[QStringLiteral("I")].toInt()));
    int linha = 0;
    for (Recordset rs = cn_.Execute(QStringLiteral("SELECT * FROM tpap ORDER BY codigo")); !rs.eof() && linha < g->rowCount();
         rs.moveNext(), ++linha) {
        const QString fixas[3] = {rs[QStringLiteral("codigo")].text(), rs[QStringLiteral("descri")].text(),
                                  rs[QStringLiteral("rateio")].text()};
        for (int c = 0; c < kColunas; ++c) {
            auto *item = new QTableWidgetItem(c < kPrimeiraDigitada ? fixas[c] : QString());
            if (c < kPrimeiraDigitada)
                item->setFlags(item->flags() & ~Qt::ItemIsEditable);
            else
                item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
            g->setItem(linha, c, item);
        }
    }
    g->setRowCount(linha);
    g->resizeColumnsToContents();
    g->horizontalHeader()->setSectionResizeMode(1, QHeaderView::Stretch);
}

frmAjTxVcto::~frmAjTxVcto()
{
    if (cn_.State() == 1)
        cn_.Close();
}

void frmAjTxVcto::cmdAjustar_Click()
{
    AjusteTaxas a;
    a.honor = Money::fromDouble(ui_->tdbHonor->valor());
    a.honcb = Money::fromDouble(ui_->tdbHoncb->valor());
    a.honfr = Money::fromDouble(ui_->tdbHonfr->valor());
    a.normal = int(ui_->tdbNormal->valor());
    a.apos = int(ui_->tdbApos->valor());
    if (ajustaTodos(cn_, a))
        fechaForm(*this);
}

void frmAjTxVcto::cmdAjTipAp_Click()
{
    QTableWidget *g = ui_->tdgAjuste;
    std::vector<AjusteTipo> linhas;
    for (int r = 0; r < g->rowCount(); ++r) {
        double v[kColunas] = {};
        for (int c = kPrimeiraDigitada; c < kColunas; ++c) {
            const QString texto = g->item(r, c) ? g->item(r, c)->text().trimmed() : QString();
            if (!texto.isEmpty() && !numeroDaCelula(texto, &v[c])) {
                MsgBox(QStringLiteral("O valor da coluna \"%1\" do tipo %2 deve ser um número !")
                           .arg(g->horizontalHeaderItem(c)->text(), g->item(r, 0)->text()),
                       vbExclamation, QStringLiteral("Atenção..."));
                g->setCurrentCell(r, c);
                return;
            }
        }
        AjusteTipo t;
        t.tipo = g->item(r, 0)->text();
        t.valores.honor = Money::fromDouble(v[3]);
        t.valores.honcb = Money::fromDouble(v[4]);
        t.valores.honfr = Money::fromDouble(v[5]);
        t.valores.normal = int(v[6]);
        t.valores.apos = int(v[7]);
        linhas.push_back(t);
    }
    ajustaPorTipo(cn_, linhas);
}

void frmAjTxVcto::cmdRecalT_Click()
{
    Ampulheta ampulheta;
    recalculaTotais(cn_);
}

void frmAjTxVcto::cmdSair_Click()
{
    fechaForm(*this);
}
