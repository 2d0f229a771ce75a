#include "accounting/forms/frmMovPesq.h"

#include "core/conversions.h"
#include "core/prompter.h"
#include "core/session.h"
#include "core/val.h"
#include "core/widgets/grade.h"
#include "core/widgets/keyboard.h"
#include "core/widgets/modal.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <cmath>

frmMovPesq::frmMovPesq(QWidget *parent) : QDialog(parent)
{
    setWindowTitle(QStringLiteral("Pesquisa "));
    auto *titulo = new QLabel(session.tituloPesq, this);
    titulo->setObjectName(QStringLiteral("lblTitulo"));
    QFont f = titulo->font();
    f.setBold(true);
    titulo->setFont(f);
    const QStringList colunas{QStringLiteral("Nr.Lan."), QStringLiteral("Data"),    QStringLiteral("Débito"),
                              QStringLiteral("Crédito"), QStringLiteral("Nr.Doc."), QStringLiteral("Valor"),
                              QStringLiteral("Histórico")};
    cmbColuna_ = new QComboBox(this);
    cmbColuna_->setObjectName(QStringLiteral("cmbColuna"));
    cmbColuna_->addItems(colunas);
    cmbColuna_->setCurrentIndex(-1);
    txtPesq_ = new QLineEdit(this);
    txtPesq_->setObjectName(QStringLiteral("txtPesq"));
    auto botao = [this](const char *nome, const QString &texto) {
        auto *b = new QPushButton(texto, this);
        b->setObjectName(QString::fromLatin1(nome));
        b->setAutoDefault(false);
        b->setMinimumWidth(88);
        return b;
    };
    QPushButton *cmdPesquisar = botao("cmdPesquisar", QStringLiteral("&Pesquisar"));
    cmdOk_ = botao("cmdOk", QStringLiteral("&Ok"));
    QPushButton *cmdSair = botao("cmdSair", QStringLiteral("&Sair"));
    tdbPesq_ = new Grade(this);
    tdbPesq_->setObjectName(QStringLiteral("tdbPesq"));
    tdbPesq_->modelo()->setTitulos(colunas);
    tdbPesq_->modelo()->setColunaNumerica(0);
    tdbPesq_->modelo()->setTipoColuna(1, GradeModel::Data);
    tdbPesq_->modelo()->setTipoColuna(5, GradeModel::Valor);

    auto *busca = new QHBoxLayout;
    busca->addWidget(new QLabel(QStringLiteral("Pesquisar por:"), this));
    busca->addWidget(cmbColuna_);
    busca->addWidget(txtPesq_, 1);
    busca->addWidget(cmdPesquisar);
    auto *botoes = new QHBoxLayout;
    botoes->addStretch();
    botoes->addWidget(cmdOk_);
    botoes->addWidget(cmdSair);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(titulo);
    layout->addLayout(busca);
    layout->addWidget(tdbPesq_, 1);
    layout->addLayout(botoes);
    resize(760, 440);
    setTabOrder(cmbColuna_, txtPesq_);
    setTabOrder(txtPesq_, cmdPesquisar);
    setTabOrder(cmdPesquisar, tdbPesq_);
    setTabOrder(tdbPesq_, cmdOk_);
    setTabOrder(cmdOk_, cmdSair);

    connect(cmdPesquisar, &QPushButton::clicked, this, &frmMovPesq::cmdPesquisar_Click);
    connect(cmdOk_, &QPushButton::clicked, this, &frmMovPesq::cmdOk_Click);
    connect(cmdSair, &QPushButton::clicked, this, &frmMovPesq::cmdSair_Click);
    connect(tdbPesq_, &Grade::linhaEscolhida, this, [this](int row) {
        tdbPesq_->posiciona(row);
        cmdOk_Click();
    });
    aplicaTeclado(*this);

    cn_.ConnectionTimeout = 100;
    cn_.Open(session.conAtiva);
    Recordset count = cn_.Execute(QStringLiteral("SELECT Count(codauto) As I FROM ") + session.tabPesq);
    if (count[QStringLiteral("I")].toInt() == 0) {
        MsgBox(QStringLiteral("Atenção, não há nenhum registro cadastrado !"), vbInformation, QStringLiteral("Atenção"));
        session.cancelaGrava = true;
        cn_.Close();
        marcaDescarregado(*this);
        return;
    }
    GradeModel *grade = tdbPesq_->modelo();
    for (Recordset rs = cn_.Execute(QStringLiteral("SELECT * FROM ") + session.tabPesq + QStringLiteral(" ORDER BY codauto"));
         !rs.eof(); rs.moveNext()) {
        grade->adiciona({ZeroEsq(rs[QStringLiteral("codauto")].text(), 6),
                         formatDate(rs[QStringLiteral("datalan")].toDate(), QStringLiteral("dd/mm/yyyy")),
                         rs[QStringLiteral("ctadeb")].text(), rs[QStringLiteral("ctacre")].text(),
                         rs[QStringLiteral("nrdoc")].text(),
                         formatNumber(rs[QStringLiteral("vlrlan")].toDouble(), QStringLiteral("#,##0.00")),
                         rs[QStringLiteral("histlan")].text()});
    }
    grade->sort(0, Qt::AscendingOrder);
    tdbPesq_->ajustaColunas();
    tdbPesq_->posiciona(0);
}

frmMovPesq::~frmMovPesq()
{
    if (cn_.State() == 1)
        cn_.Close();
}

void frmMovPesq::cmdPesquisar_Click()
{
    const QString texto = txtPesq_->text().trimmed();
    if (texto.isEmpty() || cmbColuna_->currentText().isEmpty()) {
        txtPesq_->setFocus();
        return;
    }
    // The choice names a column as the list of the old search did: "Nr.Doc."
    // looks in the amounts and "Valor" in the descriptions; the account and
    // description choices keep the column searched before.
    const QString escolha = cmbColuna_->currentText();
    if (escolha == QLatin1String("Nr.Lan."))
        colunaPesq_ = 0;
    else if (escolha == QLatin1String("Data"))
        colunaPesq_ = 1;
    else if (escolha == QLatin1String("Nr.Doc."))
        colunaPesq_ = 5;
    else if (escolha == QLatin1String("Valor"))
        colunaPesq_ = 6;
    int row = -1;
    if (colunaPesq_ == 0) {
        const double valor = std::nearbyint(val(texto));
        row = tdbPesq_->modelo()->procuraNumero(0, valor);
    } else {
        row = tdbPesq_->modelo()->procura(colunaPesq_, texto);
    }
    if (row < 0)
        return;
    tdbPesq_->posiciona(row);
    cmdOk_->setFocus();
}

void frmMovPesq::cmdOk_Click()
{
    const int row = tdbPesq_->linhaAtual();
    if (row < 0)
        return;
    session.valorPesq = tdbPesq_->texto(row, 0);
    escolheu_ = true;
    done(QDialog::Accepted);
}

void frmMovPesq::cmdSair_Click()
{
    session.cancelaGrava = true;
    done(QDialog::Rejected);
}

void frmMovPesq::done(int result)
{
    if (!escolheu_)
        session.cancelaGrava = true;
    if (cn_.State() == 1)
        cn_.Close();
    QDialog::done(result);
}
