#include "registers/forms/frmMobra.h"

#include "core/anotaerro.h"
#include "core/widgets/endereco.h"
#include "core/widgets/keyboard.h"
#include "core/widgets/maskedit.h"
#include "ui_frmMobra.h"

#include <QComboBox>

namespace {
// The kinds, stored as the digit of their place: '0' Condomínio .. '3' Outros.
// The combo has a blank entry before them.
const int kTerceirizado = 1, kFixo = 2;
const char *const kTipos[4] = {"Condomínio", "Terceirizado", "Fixo", "Outros"};

const QStringList &colunasMobra()
{
    static const QStringList c{
        QStringLiteral("codigo"),  QStringLiteral("nome"),    QStringLiteral("rg"),          QStringLiteral("cpf"),
        QStringLiteral("ctps"),    QStringLiteral("serctps"), QStringLiteral("ufctps"),      QStringLiteral("endereco"),
        QStringLiteral("numero"),  QStringLiteral("complemento"), QStringLiteral("bairro"),  QStringLiteral("cidade"),
        QStringLiteral("uf"),      QStringLiteral("cep"),     QStringLiteral("tipo"),        QStringLiteral("nascto"),
        QStringLiteral("codemap"), QStringLiteral("qualif1"), QStringLiteral("qualif2"),     QStringLiteral("qualif3"),
        QStringLiteral("observ")};
    return c;
}

QString nomeTipo(const QString &digito)
{
    const QString d = digito.trimmed();
    return d.size() == 1 && d[0] >= u'0' && d[0] <= u'3' ? QString::fromUtf8(kTipos[d[0].unicode() - u'0']) : d;
}
}

const Registro &frmMobra::descricao()
{
    auto t = [](const char *controle, const char *coluna, Tipo tipo = Tipo::Texto) {
        return Campo{QString::fromLatin1(controle), QString::fromLatin1(coluna), tipo};
    };
    static const Registro r{
        .form = QStringLiteral("frmMobra"),
        .chave = Chave::Numero,
        .busca = QStringLiteral("SELECT * FROM Mobra Where Codigo = {codigo}"),
        .existe = QStringLiteral("SELECT codigo FROM Mobra WHERE Codigo = {codigo}"),
        .contagem = QStringLiteral("SELECT Count(codigo) As I FROM Mobra"),
        .lista = QStringLiteral("SELECT * FROM Mobra ORDER BY codigo"),
        .insere = QStringLiteral(
            "INSERT INTO Mobra(codigo,nome,rg,cpf,ctps,serctps,ufctps,endereco,numero,complemento,bairro,cidade,uf,cep,"
            "tipo,nascto,codemap,qualif1,qualif2,qualif3,observ) VALUES({codigo},\"{txtNome}\",'{mskRg}','{mskCpf}',"
            "\"{txtCtps}\",\"{txtSerctps}\",\"{txtUfctps}\",\"{txtEndereco}\",\"{txtNumero}\",\"{txtComplemento}\","
            "\"{txtBairro}\",\"{txtCidade}\",\"{txtUf}\",'{mskCep}','{tipo}',{mskNascto},{codemap},\"{txtQualif1}\","
            "\"{txtQualif2}\",\"{txtQualif3}\",\"{txtObserv}\")"),
        .altera = QStringLiteral(
            "Update Mobra Set Nome = \"{txtNome}\",rg = '{mskRg}',cpf = '{mskCpf}',ctps = \"{txtCtps}\","
            "serctps = \"{txtSerctps}\",ufctps = \"{txtUfctps}\",endereco = \"{txtEndereco}\",numero = \"{txtNumero}\","
            "complemento = \"{txtComplemento}\",bairro = \"{txtBairro}\",cidade = \"{txtCidade}\",uf = \"{txtUf}\","
            "cep = '{mskCep}',tipo = '{tipo}',Nascto = {mskNascto},codemap = {codemap},qualif1 = \"{txtQualif1}\","
            "qualif2 = \"{txtQualif2}\",qualif3 = \"{txtQualif3}\",observ = \"{txtObserv}\" Where codigo = {codigo}"),
        .apaga = QStringLiteral("DELETE FROM Mobra WHERE codigo = {codigo}"),
        .campos = {t("txtNome", "nome"), {QStringLiteral("mskNascto"), QStringLiteral("nascto"), Tipo::Data, {}, QStringLiteral("null")}, t("mskRg", "rg", Tipo::Mascara),
                   t("mskCpf", "cpf", Tipo::Mascara), t("txtCtps", "ctps"), t("txtSerctps", "serctps"),
                   t("txtUfctps", "ufctps"), t("txtEndereco", "endereco"), t("txtNumero", "numero"),
                   t("txtComplemento", "complemento"), t("txtBairro", "bairro"), t("txtCidade", "cidade"),
                   t("txtUf", "uf"), t("mskCep", "cep", Tipo::Mascara), t("txtQualif1", "qualif1"),
                   t("txtQualif2", "qualif2"), t("txtQualif3", "qualif3"), t("txtObserv", "observ")},
        .calculados = {QStringLiteral("tipo"), QStringLiteral("codemap")},
        .colunasGrade = {QStringLiteral("codigo"), QStringLiteral("nome"), QStringLiteral("tipo")},
        .titulosGrade = {QStringLiteral("Código"), QStringLiteral("Nome"), QStringLiteral("Tipo")},
        .relatorio = {QStringLiteral("SELECT Mobra.* FROM Mobra WHERE Mobra.codigo = {chave}"),
                      colunasMobra() + QStringList{QStringLiteral("empap")}, QStringLiteral("CadMobra.rpt"),
                      QStringLiteral("Cadastro de Mão de Obra")},
        .pesquisa = {QStringLiteral("frmPesquisa"), QStringLiteral("Pesquisa de Mão de Obra"), QStringLiteral("Mobra")},
        .codigoInvalido = QStringLiteral("Todo registro deve ter um código numérico válido !"),
    };
    return r;
}

frmMobra::frmMobra(QWidget *parent) : RecordForm(descricao(), parent)
{
    Ui::frmMobra ui;
    ui.setupUi(this);
    cmbTipo_ = ui.cmbTipo;
    cmbEmpAp_ = ui.cmbEmpAp;
    ligaEndereco(*this, {QStringLiteral("Sigla do Estado Inválido, digite corretamente ou deixe o campo vazio"),
                         QStringLiteral("Erro")});
    aoPerderFoco(ui.mskCpf, [c = ui.mskCpf] { confereCPF(c); });
    connect(cmbTipo_, &QComboBox::currentIndexChanged, this, [this] {
        if (!enchendo_)
            cmbTipo_Click();
    });
    connect(cmbEmpAp_, &QComboBox::currentIndexChanged, this, [this] {
        if (!enchendo_)
            cmbEmpAp_Click();
    });
    carrega();
}

// The firms or units the kind chosen points to.
void frmMobra::cmbTipo_Click()
{
    enchendo_ = true;
    cmbEmpAp_->clear();
    const int tipo = cmbTipo_->currentIndex() - 1;
    QString sql;
    if (tipo == kTerceirizado)
        sql = QStringLiteral("SELECT nome FROM PJuridica WHERE nome <> '(Nenhum)' AND tipo = '2'");
    else if (tipo == kFixo)
        sql = QStringLiteral("SELECT nome FROM Aptos");
    if (!sql.isEmpty())
        for (Recordset rs = cn_.Execute(sql); !rs.eof(); rs.moveNext())
            cmbEmpAp_->addItem(rs[QStringLiteral("nome")].text());
    cmbEmpAp_->setCurrentIndex(-1);
    codemap_ = QStringLiteral("0");
    enchendo_ = false;
    modoMudou(modo());
}

// The name chosen goes back to its key.
void frmMobra::cmbEmpAp_Click()
{
    codemap_ = QStringLiteral("0");
    const int tipo = cmbTipo_->currentIndex() - 1;
    if (cmbEmpAp_->currentIndex() < 0 || (tipo != kTerceirizado && tipo != kFixo))
        return;
    Recordset rs = cn_.Execute((tipo == kTerceirizado ? QStringLiteral("SELECT codauto FROM PJuridica WHERE nome = \"")
                                                      : QStringLiteral("SELECT codauto FROM Aptos WHERE nome = \""))
                               + cmbEmpAp_->currentText() + u'"');
    if (!rs.eof())
        codemap_ = rs[QStringLiteral("codauto")].text();
}

void frmMobra::modoMudou(int modo)
{
    const int tipo = cmbTipo_->currentIndex() - 1;
    cmbEmpAp_->setEnabled(modo != 1 && (tipo == kTerceirizado || tipo == kFixo));
}

void frmMobra::valoresExtras(QHash<QString, QString> &valores) const
{
    const int tipo = cmbTipo_->currentIndex() - 1;
    valores.insert(QStringLiteral("tipo"), tipo < 0 ? QString() : QString::number(tipo));
    valores.insert(QStringLiteral("codemap"), codemap_);
}

void frmMobra::carregaExtras(const Recordset &rs)
{
    const QString tipo = rs[QStringLiteral("tipo")].text().trimmed();
    cmbTipo_->setCurrentIndex(tipo.size() == 1 && tipo[0] >= u'0' && tipo[0] <= u'3' ? tipo.toInt() + 1 : 0);
    cmbTipo_Click();
    codemap_ = rs[QStringLiteral("codemap")].text().isEmpty() ? QStringLiteral("0") : rs[QStringLiteral("codemap")].text();
    const int t = cmbTipo_->currentIndex() - 1;
    if (t != kTerceirizado && t != kFixo)
        return;
    Recordset nome = cn_.Execute((t == kTerceirizado ? QStringLiteral("SELECT nome FROM Pjuridica WHERE codauto = ")
                                                     : QStringLiteral("SELECT nome FROM Aptos WHERE codauto = "))
                                 + codemap_);
    if (!nome.eof()) {
        enchendo_ = true;
        cmbEmpAp_->setCurrentIndex(cmbEmpAp_->findText(nome[QStringLiteral("nome")].text()));
        enchendo_ = false;
    }
}

void frmMobra::validaCampos()
{
    if (controle(QStringLiteral("txtNome"))->property("text").toString().trimmed().isEmpty())
        AnotaErro(kErroFatal, QStringLiteral("O Campo Nome é Obrigatório !"));
    const int tipo = cmbTipo_->currentIndex() - 1;
    if (tipo < 0)
        AnotaErro(kErroFatal, QStringLiteral("O Campo Tipo é Obrigatório !"));
    if ((tipo == kTerceirizado || tipo == kFixo) && cmbEmpAp_->currentIndex() < 0)
        AnotaErro(kErroFatal, QStringLiteral("O Campo Empresa/Apartamento é Obrigatório !"));
}

QStringList frmMobra::linhaGrade(const Recordset &rs) const
{
    QStringList cells = RecordForm::linhaGrade(rs);
    cells[2] = nomeTipo(cells[2]);
    return cells;
}

void frmMobra::imprime(const QString &chave)
{
    if (chave.isEmpty())
        return;
    Recordset tipo = cn_.Execute(QStringLiteral("SELECT tipo FROM Mobra WHERE codigo = ") + chave);
    if (tipo.eof())
        return;
    const QString t = tipo[QStringLiteral("tipo")].text().trimmed();
    // The staff of a firm or of a unit print with its name; the others alone.
    QString sql, nomeDe;
    if (t == QString::number(kFixo)) {
        sql = QStringLiteral("SELECT Mobra.*,Aptos.Nome FROM Mobra INNER JOIN Aptos ON Mobra.CodEmAp = Aptos.Codauto "
                             "WHERE Mobra.codigo = ");
        nomeDe = QStringLiteral("Aptos.nome");
    } else if (t == QString::number(kTerceirizado)) {
        sql = QStringLiteral("SELECT Mobra.*,Pjuridica.Nome FROM Mobra INNER JOIN Pjuridica ON Mobra.CodEmAp = "
                             "Pjuridica.Codauto WHERE mobra.codigo = ");
        nomeDe = QStringLiteral("Pjuridica.nome");
    } else {
        sql = QStringLiteral("SELECT Mobra.* FROM Mobra WHERE Mobra.codigo = ");
    }
    const RelatorioRegistro &r = registro().relatorio;
    Recordset rs;
    Ampulheta ampulheta;
    ImprimeRelatorio(cn_, rs, sql + chave, r.colunas, r.modelo, r.titulo, {}, [nomeDe](const Recordset &row) {
        QStringList l;
        for (const QString &c : colunasMobra())
            l << (c == QLatin1String("tipo") ? nomeTipo(row[c].text()) : row[c].text());
        l << (nomeDe.isEmpty() ? QString() : row[nomeDe].text());
        return l;
    });
}
