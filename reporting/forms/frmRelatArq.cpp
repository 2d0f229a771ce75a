#include "reporting/forms/frmRelatArq.h"

#include "core/prompter.h"
#include "core/session.h"
#include "core/widgets/keyboard.h"
#include "core/widgets/modal.h"
#include "reporting/listas.h"
#include "ui_frmRelatArq.h"

#include <QCloseEvent>

frmRelatArq::frmRelatArq(QWidget *parent) : QWidget(parent), ui_(std::make_unique<Ui::frmRelatArq>())
{
    ui_->setupUi(this);
    GradeModel *m = ui_->tdlModelo->modelo();
    m->setTitulos({QStringLiteral("Nr."), QStringLiteral("Arquivo Base"),
                   QStringLiteral("Modelo/Conteúdo do Relatório")});
    m->setColunaNumerica(0);
    for (const ModeloListagem &mod : modelosListagem())
        m->adiciona({QString::number(mod.numero), mod.tabela, mod.descricao});
    ui_->tdlModelo->ajustaColunas();
    ui_->tdlModelo->posiciona(-1);
    // A model is chosen by the clerk's click (or move) on its row; a header
    // click only sorts.
    connect(ui_->tdlModelo, &Grade::linhaMudou, this,
            [this](int linha) { modelo_ = ui_->tdlModelo->texto(linha, 0).toInt(); });

    for (const CampoFiltro &c : camposFiltroListagem()) {
        ui_->cmbCampo->addItem(c.texto);
        ui_->cmbOrdem->addItem(c.texto);
    }
    ui_->cmbCampo->setCurrentIndex(-1);
    ui_->cmbOrdem->setCurrentIndex(0);
    campoEscolhido();

    connect(ui_->cmbCampo, &QComboBox::currentIndexChanged, this, &frmRelatArq::campoEscolhido);
    connect(ui_->cmdImprimir, &QPushButton::clicked, this, &frmRelatArq::cmdImprimir_Click);
    connect(ui_->cmdLimpaFiltros, &QPushButton::clicked, this, &frmRelatArq::cmdLimpaFiltros_Click);
    connect(ui_->cmdSair, &QPushButton::clicked, this, [this] { fechaForm(*this); });
    aplicaTeclado(*this);
    cn_.Open(session.conAtiva);
}

frmRelatArq::~frmRelatArq()
{
    if (cn_.State() == 1)
        cn_.Close();
}

// The kind of the chosen field shows its pair of from/to controls; with no
// field chosen the text pair stands disabled.
void frmRelatArq::campoEscolhido()
{
    const int i = ui_->cmbCampo->currentIndex();
    const QChar tipo = i < 0 ? QLatin1Char('S') : camposFiltroListagem()[i].tipo;
    const bool texto = tipo == QLatin1Char('S'), numero = tipo == QLatin1Char('N'), data = tipo == QLatin1Char('D');
    ui_->txtDe->setVisible(texto);
    ui_->txtAt->setVisible(texto);
    ui_->tdnDe->setVisible(numero);
    ui_->tdnAt->setVisible(numero);
    ui_->tdbDe->setVisible(data);
    ui_->tdbAt->setVisible(data);
    for (QWidget *w : {static_cast<QWidget *>(ui_->txtDe), static_cast<QWidget *>(ui_->txtAt)})
        w->setEnabled(i >= 0);
    auto par = [&](QWidget *t, QWidget *n, QWidget *d) { return texto ? t : numero ? n : d; };
    ui_->lblDe->setBuddy(par(ui_->txtDe, ui_->tdnDe, ui_->tdbDe));
    ui_->lblAte->setBuddy(par(ui_->txtAt, ui_->tdnAt, ui_->tdbAt));
}

void frmRelatArq::cmdLimpaFiltros_Click()
{
    ui_->txtDe->clear();
    ui_->txtAt->clear();
    ui_->tdnDe->clear();
    ui_->tdnAt->clear();
    ui_->tdbDe->limpa();
    ui_->tdbAt->limpa();
    ui_->cmbCampo->setCurrentIndex(-1);
}

void frmRelatArq::cmdImprimir_Click()
{
    const int c = ui_->cmbCampo->currentIndex();
    QString de, ate;
    if (c >= 0) {
        const QChar tipo = camposFiltroListagem()[c].tipo;
        bool vazio = false;
        if (tipo == QLatin1Char('N')) {
            de = ui_->tdnDe->text().trimmed();
            ate = ui_->tdnAt->text().trimmed();
            vazio = de.isEmpty() || ate.isEmpty();
        } else if (tipo == QLatin1Char('D')) {
            de = ui_->tdbDe->text();
            ate = ui_->tdbAt->text();
            vazio = ui_->tdbDe->vazio() || ui_->tdbAt->vazio();
        } else {
            de = ui_->txtDe->text();
            ate = ui_->txtAt->text();
            vazio = de.isEmpty() || ate.isEmpty();
        }
        if (vazio) {
            MsgBox(QStringLiteral("Você indicou Campos de Filtros e não preencheu os intervalos De... Até...; verifique !"),
                   vbExclamation, QStringLiteral("Atenção"));
            return;
        }
    }
    if (modelo_ < 1) {
        MsgBox(QStringLiteral("Você Tem de Escolher um Modelo de Listagem !"), vbExclamation, QStringLiteral("Atenção"));
        ui_->tdlModelo->setFocus();
        return;
    }
    const int numero = modelo_;
    const ModeloListagem &modelo = modelosListagem()[numero - 1];

    const QString filtro = c >= 0 ? filtroListagem(camposFiltroListagem()[c], de, ate) : QString();
    session.sql = QStringLiteral("SELECT * FROM ") + modelo.tabela + QStringLiteral(" ") + filtro
        + ordemListagem(ui_->cmbOrdem->currentText());
    Recordset rs;
    if (!ImprimeRelatorio(cn_, rs, session.sql, colunasListagem(), arquivoModelo(numero),
                          QStringLiteral("Listagens Resumidas"), {{QStringLiteral("Titu"), modelo.descricao}},
                          linhaListagem(cn_))) {
        MsgBox(QStringLiteral("Não há registros na condição especificada !"), vbExclamation, QStringLiteral("Erro"));
        ui_->tdlModelo->setFocus();
    }
}

void frmRelatArq::closeEvent(QCloseEvent *event)
{
    marcaFechando(*this);
    if (cn_.State() == 1)
        cn_.Close();
    event->accept();
}
