#include "registers/forms/pesquisa.h"

#include "core/conversions.h"
#include "core/forms/formcatalog.h"
#include "core/prompter.h"
#include "core/session.h"
#include "core/val.h"
#include "core/widgets/grade.h"
#include "core/widgets/keyboard.h"
#include "core/widgets/modal.h"

#include <QComboBox>
#include <QFocusEvent>
#include <QHeaderView>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <cmath>
#include <memory>

PesquisaDialog::PesquisaDialog(QWidget *parent, const QString &nome, const QString &connectionString,
                               const QList<Coluna> &colunas, const QString &fonte, const QString &ordem)
    : QDialog(parent), colunas_(colunas)
{
    const QString de = fonte.isEmpty() ? session.tabPesq : fonte;
    setObjectName(nome);
    setWindowTitle(session.tituloPesq);

    lblTitulo_ = new QLabel(session.tituloPesq, this);
    lblTitulo_->setObjectName(QStringLiteral("lblTitulo"));
    QFont f = lblTitulo_->font();
    f.setBold(true);
    lblTitulo_->setFont(f);
    cmbColuna_ = new QComboBox(this);
    cmbColuna_->setObjectName(QStringLiteral("cmbColuna"));
    for (const Coluna &c : colunas)
        cmbColuna_->addItem(c.titulo);
    txtPesq_ = new QLineEdit(this);
    txtPesq_->setObjectName(QStringLiteral("txtPesq"));
    txtPesq_->setMinimumWidth(240);
    auto botao = [this](const char *name, const QString &caption) {
        auto *b = new QPushButton(caption, this);
        b->setObjectName(QString::fromLatin1(name));
        b->setAutoDefault(false);
        b->setMinimumWidth(88);
        return b;
    };
    cmdPesquisar_ = botao("cmdPesquisar", QStringLiteral("&Pesquisar"));
    cmdOk_ = botao("cmdOk", QStringLiteral("&Ok"));
    cmdCancela_ = botao("cmdCancela", QStringLiteral("&Cancelar"));
    tdbPesq_ = new Grade(this);
    tdbPesq_->setObjectName(QStringLiteral("tdbPesq"));
    QStringList titulos;
    for (const Coluna &c : colunas)
        titulos << c.titulo;
    tdbPesq_->modelo()->setTitulos(titulos);
    for (int c = 0; c < colunas.size(); ++c)
        tdbPesq_->modelo()->setColunaNumerica(c, colunas[c].numerica);

    auto *busca = new QHBoxLayout;
    busca->addWidget(new QLabel(QStringLiteral("Pesquisar por:"), this));
    busca->addWidget(cmbColuna_);
    busca->addWidget(txtPesq_, 1);
    busca->addWidget(cmdPesquisar_);
    auto *botoes = new QHBoxLayout;
    botoes->addStretch();
    botoes->addWidget(cmdOk_);
    botoes->addWidget(cmdCancela_);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(lblTitulo_);
    layout->addLayout(busca);
    layout->addWidget(tdbPesq_, 1);
    layout->addLayout(botoes);
    resize(560, 420);

    connect(cmdPesquisar_, &QPushButton::clicked, this, &PesquisaDialog::cmdPesquisar_Click);
    connect(cmdOk_, &QPushButton::clicked, this, &PesquisaDialog::cmdOk_Click);
    connect(cmdCancela_, &QPushButton::clicked, this, &PesquisaDialog::cmdCancela_Click);
    connect(tdbPesq_, &Grade::linhaEscolhida, this, [this](int row) {
        tdbPesq_->posiciona(row);
        cmdOk_Click();
    });
    aplicaTeclado(*this);
    aoPerderFoco(txtPesq_, [this] {
        if (!txtPesq_->text().isEmpty() && cn_.State() == 1)
            cmdPesquisar_Click();
    });

    // Load.
    cn_.ConnectionTimeout = 100;
    cn_.Open(connectionString);
    Recordset count = cn_.Execute(QStringLiteral("SELECT Count(codigo) As I FROM ") + de);
    if (count[QStringLiteral("I")].toInt() == 0) {
        MsgBox(QStringLiteral("Atenção, não há nenhum registro cadastrado !"), vbInformation, QStringLiteral("Atenção"));
        session.cancelaGrava = true;
        cn_.Close();
        marcaDescarregado(*this);
        return;
    }
    QStringList campos;
    for (const Coluna &c : colunas)
        campos << c.campo;
    for (Recordset rs = cn_.Execute(QStringLiteral("SELECT ") + campos.join(u',') + QStringLiteral(" FROM ") + de + ordem);
         !rs.eof(); rs.moveNext()) {
        QStringList linha;
        for (const Coluna &c : colunas)
            linha << rs[c.campo].text();
        tdbPesq_->modelo()->adiciona(linha);
    }
    cmbColuna_->setCurrentIndex(int(colunas.size()) - 1);  // "Nome"
    cmbColuna_Change();
    tdbPesq_->ajustaColunas();
    tdbPesq_->posiciona(0);
    connect(cmbColuna_, &QComboBox::currentIndexChanged, this, &PesquisaDialog::cmbColuna_Change);
}

PesquisaDialog::~PesquisaDialog()
{
    if (cn_.State() == 1)
        cn_.Close();
}

int PesquisaDialog::colunaEscolhida() const { return std::max(0, cmbColuna_->currentIndex()); }

void PesquisaDialog::cmbColuna_Change()
{
    tdbPesq_->modelo()->sort(colunaEscolhida(), Qt::AscendingOrder);
    tdbPesq_->horizontalHeader()->setSortIndicator(colunaEscolhida(), Qt::AscendingOrder);
}


void PesquisaDialog::cmdPesquisar_Click()
{
    const QString texto = txtPesq_->text().trimmed();
    if (texto.isEmpty()) {
        txtPesq_->setFocus();
        return;
    }
    const int coluna = colunaEscolhida();
    int row = -1;
    if (colunas_[coluna].numerica) {
        // The code is searched as a 16-bit whole number, rounded as the conversion rounds.
        const double valor = std::nearbyint(val(texto));
        if (valor >= -32768 && valor <= 32767)
            row = tdbPesq_->modelo()->procuraNumero(coluna, valor);
    } else {
        row = tdbPesq_->modelo()->procura(coluna, texto);
    }
    if (row < 0)
        return;
    tdbPesq_->posiciona(row);
    cmdOk_->setFocus();
}

void PesquisaDialog::cmdOk_Click()
{
    const int row = tdbPesq_->linhaAtual();
    if (row < 0)
        return;
    session.valorPesq = tdbPesq_->texto(row, 0);
    confirmou_ = true;
    done(QDialog::Accepted);
}

void PesquisaDialog::cmdCancela_Click()
{
    session.cancelaGrava = true;
    done(QDialog::Rejected);
}

void PesquisaDialog::done(int result)
{
    if (!confirmou_)
        session.cancelaGrava = true;
    if (cn_.State() == 1)
        cn_.Close();
    QDialog::done(result);
}
