#include "registers/forms/frmVeiculos.h"

#include "core/anotaerro.h"
#include "registers/forms/codigopeloteclado.h"
#include "core/conversions.h"
#include "core/prompter.h"
#include "core/widgets/keyboard.h"
#include "core/widgets/maskedit.h"
#include "ui_frmVeiculos.h"

#include <QComboBox>
#include <QLabel>

namespace {
QString texto(const QString &t) { return u'"' + t + u'"'; }
}

const Registro &frmVeiculos::descricao()
{
    static const Registro r{
        .form = QStringLiteral("frmVeiculos"),
        .busca = QStringLiteral("SELECT * FROM Veiculos Where Chapa = '{codigo}'"),
        .existe = QStringLiteral("SELECT * FROM Veiculos Where Chapa = '{codigo}'"),
        .contagem = QStringLiteral("SELECT Count(Chapa) As I FROM Veiculos"),
        .lista = QStringLiteral("SELECT * FROM Veiculos ORDER BY chapa"),
        .insere = QStringLiteral("INSERT INTO Veiculos(chapa,apto,proprietario,ano,cor,marca,modelo,obs) VALUES('{codigo}',"
                                 "'{apto}',\"{txtProprietario}\",'{mskAno}',\"{txtCor}\",\"{cmbMarca}\",\"{cmbModelo}\","
                                 "\"{txtObs}\")"),
        .altera = QStringLiteral("Update Veiculos Set apto = '{apto}',proprietario = \"{txtProprietario}\",ano = '{mskAno}',"
                                 "cor = \"{txtCor}\",marca = \"{cmbMarca}\",modelo = \"{cmbModelo}\",obs = \"{txtObs}\""
                                 " Where chapa = '{codigo}'"),
        .apaga = QStringLiteral("DELETE FROM Veiculos WHERE Chapa = '{codigo}'"),
        // The make before the model: choosing the make fills the models.
        .campos = {{QStringLiteral("mskApto"), QStringLiteral("apto"), Tipo::Mascara},
                   {QStringLiteral("txtProprietario"), QStringLiteral("proprietario")},
                   {QStringLiteral("cmbMarca"), QStringLiteral("marca"), Tipo::Combo},
                   {QStringLiteral("cmbModelo"), QStringLiteral("modelo"), Tipo::Combo},
                   {QStringLiteral("mskAno"), QStringLiteral("ano"), Tipo::Mascara},
                   {QStringLiteral("txtCor"), QStringLiteral("cor")},
                   {QStringLiteral("txtObs"), QStringLiteral("obs")}},
        .calculados = {QStringLiteral("apto")},
        .colunasGrade = {QStringLiteral("chapa"), QStringLiteral("apto"), QStringLiteral("proprietario"),
                         QStringLiteral("marca"), QStringLiteral("modelo")},
        .titulosGrade = {QStringLiteral("Chapa"), QStringLiteral("Apto"), QStringLiteral("Proprietário"),
                         QStringLiteral("Marca"), QStringLiteral("Modelo")},
        .codigoInvalido = QStringLiteral("No campo Chapa existem erros !"),
        .codigoRepetido = QStringLiteral("Chapa de Veículo Já Cadastrado !"),
    };
    return r;
}

frmVeiculos::frmVeiculos(QWidget *parent) : RecordForm(descricao(), parent)
{
    Ui::frmVeiculos ui;
    ui.setupUi(this);
    mskApto_ = ui.mskApto;
    mskAno_ = ui.mskAno;
    cmbMarca_ = ui.cmbMarca;
    cmbModelo_ = ui.cmbModelo;
    lblNomeApto_ = ui.lblNomeApto;
    aoPerderFoco(ui.mskApto, [this] { mostraUnidade(); });
    connect(cmbMarca_, &QComboBox::currentIndexChanged, this, [this] {
        if (!enchendo_)
            cmbMarca_Click();
    });
    carrega();
    codigoPeloTeclado(*this, *ui.mskCodigo);
    enchaMarcas();
}

// A plate is kept as it shows, "ABC-1234"; one with empty places is no plate.
QString frmVeiculos::normalizaCodigo(const QString &masked) const
{
    return masked == mskCodigo_->textoVazio() ? QString() : masked;
}

bool frmVeiculos::codigoVazio(const QString &codigo) const { return codigo.isEmpty() || codigo.contains(u'_'); }

QString frmVeiculos::unidade() const
{
    const QString puro = mskApto_->textoPuro();
    return puro.isEmpty() ? QString() : ZeroEsq(puro, 6);
}

void frmVeiculos::mostraUnidade()
{
    lblNomeApto_->clear();
    const QString codigo = unidade();
    if (codigo.isEmpty())
        return;
    mskApto_->setText(codigo);
    Recordset rs = cn_.Execute(QStringLiteral("SELECT nome FROM Aptos WHERE codigo = '") + codigo + u'\'');
    if (!rs.eof())
        lblNomeApto_->setText(rs[QStringLiteral("nome")].text());
}

void frmVeiculos::enchaMarcas()
{
    enchendo_ = true;
    cmbMarca_->clear();
    for (Recordset rs = cn_.Execute(QStringLiteral("SELECT descri FROM TpVeiculos WHERE grupo = True ORDER BY descri"));
         !rs.eof(); rs.moveNext())
        cmbMarca_->addItem(rs[QStringLiteral("descri")].text());
    cmbMarca_->setCurrentIndex(-1);
    enchendo_ = false;
    if (cmbMarca_->count() == 0)
        MsgBox(QStringLiteral("A Tabela de Marcas de Veículos está vazia ou inacessível, verifique..."), vbExclamation,
               QStringLiteral("Atenção..."));
}

void frmVeiculos::cmbMarca_Click()
{
    cmbModelo_->clear();
    if (cmbMarca_->currentIndex() < 0)
        return;
    Recordset marca = cn_.Execute(QStringLiteral("SELECT codgrupo FROM TpVeiculos WHERE descri = ")
                                  + texto(cmbMarca_->currentText()));
    if (marca.eof())
        return;
    const QString codigo = marca[QStringLiteral("codgrupo")].text().left(2);
    for (Recordset rs = cn_.Execute(QStringLiteral("SELECT descri FROM TpVeiculos WHERE grupo = False And "
                                                   "Left(codgrupo, 2) = '")
                                    + codigo + QStringLiteral("' ORDER BY descri"));
         !rs.eof(); rs.moveNext())
        cmbModelo_->addItem(rs[QStringLiteral("descri")].text());
    cmbModelo_->setCurrentIndex(-1);
    if (cmbModelo_->count() == 0)
        MsgBox(QStringLiteral("A Tabela de Modelos de Veículos está vazia ou inacessível, verifique..."), vbExclamation,
               QStringLiteral("Atenção..."));
}

void frmVeiculos::valoresExtras(QHash<QString, QString> &valores) const { valores.insert(QStringLiteral("apto"), unidade()); }

void frmVeiculos::carregaExtras(const Recordset &rs)
{
    mostraUnidade();
    const QString modelo = rs[QStringLiteral("modelo")].text();
    Recordset existe = cn_.Execute(QStringLiteral("SELECT descri FROM TpVeiculos WHERE descri = ") + texto(modelo)
                                   + QStringLiteral(" AND grupo = false"));
    if (existe.eof())
        MsgBox(QStringLiteral("O modelo de automóvel ") + modelo
                   + QStringLiteral(" não está presente na tabela de Tipo de Veículos... Verifique e Corrija para "
                                    "regularizar as Tabelas !!!"),
               vbExclamation, QStringLiteral("Atenção..."));
}

void frmVeiculos::validaCampos()
{
    const QString apto = unidade();
    if (apto.isEmpty()) {
        AnotaErro(kErroFatal, QStringLiteral("O campo Apto é obrigatório !"));
    } else {
        Recordset rs = cn_.Execute(QStringLiteral("SELECT codigo FROM Aptos WHERE codigo = '") + apto + u'\'');
        if (rs.eof())
            AnotaErro(kErroFatal, QStringLiteral("Código de apartamento inválido !"));
    }
    auto vazio = [this](const char *nome) { return controle(QString::fromLatin1(nome))->property("text").toString().trimmed().isEmpty(); };
    if (vazio("txtProprietario"))
        AnotaErro(kErroFatal, QStringLiteral("O campo Proprietário é obrigatório !"));
    if (vazio("txtCor"))
        AnotaErro(kErroFatal, QStringLiteral("O campo Cor é obrigatório !"));
    if (mskAno_->textoPuro().size() != 4)
        AnotaErro(kErroFatal, QStringLiteral("O campo Ano deve ser preenchido com quatro dígitos !"));
    if (cmbMarca_->currentIndex() < 0)
        AnotaErro(kErroFatal, QStringLiteral("O campo Marca é obrigatório !"));
    if (cmbModelo_->currentIndex() < 0)
        AnotaErro(kErroFatal, QStringLiteral("O campo Modelo é obrigatório !"));
}
