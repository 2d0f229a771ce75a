#include "billing/forms/frmPesqRecSel.h"

#include "core/prompter.h"
#include "core/session.h"
#include "core/val.h"
#include "core/widgets/keyboard.h"
#include "core/widgets/modal.h"
#include "ui_frmPesqRecSel.h"

frmPesqRecSel::frmPesqRecSel(QWidget *parent) : QDialog(parent), ui_(std::make_unique<Ui::frmPesqRecSel>())
{
    ui_->setupUi(this);
    if (!session.tituloPesq.isEmpty())
        setWindowTitle(session.tituloPesq);
    GradeModel *m = ui_->tdbPesq->modelo();
    m->setTitulos({QStringLiteral("Apto."), QStringLiteral("Nome"), QStringLiteral("Recibo"), QStringLiteral("Emissão"),
                   QStringLiteral("Data")});
    m->setColunaNumerica(0);
    connect(ui_->cmdPesquisar, &QPushButton::clicked, this, &frmPesqRecSel::cmdPesquisar_Click);
    connect(ui_->cmdOk, &QPushButton::clicked, this, &frmPesqRecSel::cmdOk_Click);
    connect(ui_->cmdCancelar, &QPushButton::clicked, this, &frmPesqRecSel::reject);
    connect(ui_->tdbPesq, &Grade::linhaEscolhida, this, [this] { cmdOk_Click(); });
    aplicaTeclado(*this);

    Ampulheta ampulheta;
    cn_.ConnectionTimeout = 100;
    cn_.Open(session.conAtiva);
    Recordset rs = cn_.Execute(session.sql);
    if (rs.eof()) {
        ponteiroNormal();
        MsgBox(QStringLiteral("Atenção, não há nenhum registro cadastrado !"), vbExclamation, QStringLiteral("Atenção"));
        session.cancelaGrava = true;
        marcaDescarregado(*this);
        return;
    }
    while (!rs.eof()) {
        m->adiciona({rs[QStringLiteral("codigo")].text(), rs[QStringLiteral("nome")].text(),
                     rs[QStringLiteral("nrecibo")].text(), rs[QStringLiteral("nemis")].text(),
                     rs[QStringLiteral("demis")].text()});
        rs.moveNext();
    }
    ui_->tdbPesq->ajustaColunas();
    ui_->tdbPesq->posiciona(0);
}

frmPesqRecSel::~frmPesqRecSel()
{
    if (cn_.State() == 1)
        cn_.Close();
}

// A number finds its unit; any other text the first name that begins with it.
void frmPesqRecSel::cmdPesquisar_Click()
{
    const QString texto = ui_->txtPesquisa->text().trimmed();
    if (texto.isEmpty())
        return;
    bool numero = false;
    texto.toLongLong(&numero);
    const int linha = numero ? ui_->tdbPesq->modelo()->procuraNumero(0, val(texto))
                             : ui_->tdbPesq->modelo()->procura(1, texto);
    if (linha < 0) {
        MsgBox(QStringLiteral("Apartamento não encontrado !"), vbExclamation, QStringLiteral("Atenção"));
        return;
    }
    ui_->tdbPesq->posiciona(linha);
}

void frmPesqRecSel::cmdOk_Click()
{
    const int linha = ui_->tdbPesq->linhaAtual();
    if (linha < 0)
        return;
    session.valorPesq = ui_->tdbPesq->texto(linha, 0);
    session.cancelaGrava = false;
    accept();
}

void frmPesqRecSel::reject()
{
    session.cancelaGrava = true;
    QDialog::reject();
}
