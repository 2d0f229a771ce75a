#include "billing/forms/frmPesqRec.h"

#include "core/conversions.h"
#include "core/prompter.h"
#include "core/session.h"
#include "core/val.h"
#include "core/widgets/keyboard.h"
#include "core/widgets/modal.h"
#include "ui_frmPesqRec.h"

frmPesqRec::frmPesqRec(QWidget *parent) : QDialog(parent), ui_(std::make_unique<Ui::frmPesqRec>())
{
    ui_->setupUi(this);
    if (!session.tituloPesq.isEmpty())
        setWindowTitle(session.tituloPesq);
    GradeModel *m = ui_->tdbPesq->modelo();
    m->setTitulos({QStringLiteral("Recibo"), QStringLiteral("Emissão"), QStringLiteral("Vencto"), QStringLiteral("Recbto"),
                   QStringLiteral("Apto."), QStringLiteral("LC"), QStringLiteral("Nr.Banco"), QStringLiteral("Proprietário"),
                   QStringLiteral("Valor")});
    m->setColunaNumerica(0);
    connect(ui_->cmdPesquisar, &QPushButton::clicked, this, &frmPesqRec::cmdPesquisar_Click);
    connect(ui_->cmdOk, &QPushButton::clicked, this, &frmPesqRec::cmdOk_Click);
    connect(ui_->cmdCancelar, &QPushButton::clicked, this, &frmPesqRec::reject);
    connect(ui_->tdbPesq, &Grade::linhaEscolhida, this, [this] { cmdOk_Click(); });
    aplicaTeclado(*this);

    Ampulheta ampulheta;
    cn_.ConnectionTimeout = 100;
    cn_.Open(session.conAtiva);
    Recordset conta = cn_.Execute(session.tabPesq);
    if (conta.eof() || conta[QStringLiteral("I")].toInt() == 0) {
        ponteiroNormal();
        MsgBox(QStringLiteral("Atenção, não existem recibos cadastrado em aberto !"), vbExclamation, QStringLiteral("Atenção"));
        session.cancelaGrava = true;
        marcaDescarregado(*this);
        return;
    }
    Money total;
    Recordset rs = cn_.Execute(session.sql);
    // The list of a unit's debts (frmTEleitor) brings no bank number.
    const bool comNrbco = rs.columnNames().contains(QStringLiteral("nrbco"), Qt::CaseInsensitive);
    while (!rs.eof()) {
        const QString codap = rs[QStringLiteral("codap")].text();
        Recordset ap = cn_.Execute(QStringLiteral("SELECT nome FROM aptos WHERE codigo = '") + codap + QStringLiteral("'"));
        const Money valor = rs[QStringLiteral("vtotal")].toMoney();
        total += valor;
        m->adiciona({rs[QStringLiteral("codigo")].text(), rs[QStringLiteral("demis")].text(),
                     rs[QStringLiteral("dvencto")].text(), rs[QStringLiteral("drecbto")].text(), codap,
                     rs[QStringLiteral("tipcob")].text(), comNrbco ? rs[QStringLiteral("nrbco")].text() : QString(),
                     ap.eof() ? QString() : ap[QStringLiteral("nome")].text(),
                     formatMoney(valor, QStringLiteral("R$ ######,##0.00"))});
        rs.moveNext();
    }
    ui_->lblTotal->setText(formatMoney(total, QStringLiteral("R$ ######,##0.00")));
    ui_->tdbPesq->ajustaColunas();
    ui_->tdbPesq->posiciona(0);
}

frmPesqRec::~frmPesqRec()
{
    if (cn_.State() == 1)
        cn_.Close();
}

// A number finds its receipt; any other text the first owner whose name
// begins with it.
void frmPesqRec::cmdPesquisar_Click()
{
    const QString texto = ui_->txtPesquisa->text().trimmed();
    if (texto.isEmpty())
        return;
    bool numero = false;
    texto.toLongLong(&numero);
    const int linha = numero ? ui_->tdbPesq->modelo()->procuraNumero(0, val(texto))
                             : ui_->tdbPesq->modelo()->procura(7, texto);
    if (linha < 0) {
        MsgBox(QStringLiteral("Recibo não encontrado !"), vbExclamation, QStringLiteral("Atenção"));
        return;
    }
    ui_->tdbPesq->posiciona(linha);
}

void frmPesqRec::cmdOk_Click()
{
    const int linha = ui_->tdbPesq->linhaAtual();
    if (linha < 0)
        return;
    session.valorPesq = ui_->tdbPesq->texto(linha, 0);
    session.cancelaGrava = false;
    accept();
}

void frmPesqRec::reject()
{
    session.cancelaGrava = true;
    QDialog::reject();
}
