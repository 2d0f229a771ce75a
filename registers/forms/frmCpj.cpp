#include "registers/forms/frmCpj.h"

#include "core/val.h"
#include "core/widgets/endereco.h"
#include "core/widgets/keyboard.h"
#include "core/widgets/maskedit.h"
#include "ui_frmCpj.h"

namespace {
const char *const kTipos[4] = {"Imobiliária", "Financeira", "Tercerizadora", "Outros"};

QStringList colunasDoCadastro()
{
    QStringList c{QStringLiteral("codigo"), QStringLiteral("Nome"), QStringLiteral("endereco"), QStringLiteral("bairro"),
                  QStringLiteral("cidade"), QStringLiteral("uf"), QStringLiteral("cep"), QStringLiteral("tipo"),
                  QStringLiteral("numero"), QStringLiteral("complemento"), QStringLiteral("cnpj"), QStringLiteral("cpf"),
                  QStringLiteral("inscest")};
    for (int n = 0; n < 3; ++n)
        c << QStringLiteral("contato%1").arg(n) << QStringLiteral("setor%1").arg(n) << QStringLiteral("nascto%1").arg(n);
    c << QStringLiteral("ddd") << QStringLiteral("fone0") << QStringLiteral("fone1") << QStringLiteral("fone2")
      << QStringLiteral("email") << QStringLiteral("hp") << QStringLiteral("fax") << QStringLiteral("obs");
    return c;
}

QList<Campo> camposDoCadastro()
{
    auto t = [](const char *controle, const char *coluna) { return Campo{QString::fromLatin1(controle), QString::fromLatin1(coluna)}; };
    auto m = [](const char *controle, const char *coluna) {
        return Campo{QString::fromLatin1(controle), QString::fromLatin1(coluna), Tipo::Mascara};
    };
    QList<Campo> c{t("txtNome", "nome"), t("txtEndereco", "endereco"), t("txtNumero", "numero"),
                   t("txtComplemento", "complemento"), t("txtBairro", "bairro"), t("txtCidade", "cidade"),
                   t("txtUf", "uf"), m("mskCep", "cep"), m("mskCnpj", "cnpj"), m("mskCpf", "cpf"),
                   t("txtInscest", "inscest"),
                   {QStringLiteral("optTipo"), QStringLiteral("tipo"), Tipo::Opcao,
                    {{QStringLiteral("optTipo0"), QStringLiteral("0")}, {QStringLiteral("optTipo1"), QStringLiteral("1")},
                     {QStringLiteral("optTipo2"), QStringLiteral("2")}, {QStringLiteral("optTipo3"), QStringLiteral("3")}}}};
    for (int n = 0; n < 3; ++n) {
        c << Campo{QStringLiteral("txtContato%1").arg(n), QStringLiteral("contato%1").arg(n)}
          << Campo{QStringLiteral("txtSetor%1").arg(n), QStringLiteral("setor%1").arg(n)}
          << Campo{QStringLiteral("mskNascto%1").arg(n), QStringLiteral("nascto%1").arg(n), Tipo::Data, {}, QStringLiteral("null")}
          << Campo{QStringLiteral("txtFone%1").arg(n), QStringLiteral("fone%1").arg(n)};
    }
    c << t("txtDdd", "ddd") << t("txtEmail", "email") << t("txtHomepage", "homepage") << t("txtFax", "fax")
      << t("txtObs", "obs");
    return c;
}
}

const Registro &frmCpj::descricao()
{
    static const Registro r{
        .form = QStringLiteral("frmCpj"),
        .chave = Chave::Numero,
        .busca = QStringLiteral("SELECT * FROM PJuridica Where Codigo = {codigo}"),
        .existe = QStringLiteral("SELECT codigo FROM PJuridica Where Codigo = {codigo}"),
        // The (Nenhum) rows of code 0 belong to the combos of the units; they are never edited here.
        .contagem = QStringLiteral("SELECT Count(codigo) As I FROM PJuridica WHERE codigo > 0"),
        .lista = QStringLiteral("SELECT * FROM PJuridica WHERE codigo > 0 ORDER BY codigo"),
        .insere = QStringLiteral(
            "INSERT INTO PJuridica(codigo,Nome,endereco,bairro,cidade,uf,cep,tipo,numero,complemento,cnpj,cpf,inscest,"
            "contato0,setor0,nascto0,contato1,setor1,nascto1,contato2,setor2,nascto2,ddd,"
            "fone0,fone1,fone2,email,homepage,fax,obs)"
            " VALUES( \"{codigo}\",\"{txtNome}\",\"{txtEndereco}\",\"{txtBairro}\",\"{txtCidade}\",\"{txtUf}\","
            "\"{mskCep}\",'{optTipo}',\"{txtNumero}\",\"{txtComplemento}\",\"{mskCnpj}\",\"{mskCpf}\",\"{txtInscest}\","
            "\"{txtContato0}\",\"{txtSetor0}\",{mskNascto0},\"{txtContato1}\",\"{txtSetor1}\",{mskNascto1},"
            "\"{txtContato2}\",\"{txtSetor2}\",{mskNascto2},\"{txtDdd}\","
            "\"{txtFone0}\",\"{txtFone1}\",\"{txtFone2}\",\"{txtEmail}\",\"{txtHomepage}\",\"{txtFax}\",\"{txtObs}\")"),
        .altera = QStringLiteral(
            "Update PJuridica Set Nome = \"{txtNome}\",endereco = \"{txtEndereco}\",bairro = \"{txtBairro}\","
            "cidade = \"{txtCidade}\",uf = \"{txtUf}\",cep = \"{mskCep}\",tipo = '{optTipo}',numero = \"{txtNumero}\","
            "complemento = \"{txtComplemento}\",cnpj = \"{mskCnpj}\",cpf = \"{mskCpf}\",inscest = \"{txtInscest}\","
            "contato0 = \"{txtContato0}\",setor0 = \"{txtSetor0}\",Nascto0 = {mskNascto0},"
            "contato1 = \"{txtContato1}\",setor1 = \"{txtSetor1}\",Nascto1 = {mskNascto1},"
            "contato2 = \"{txtContato2}\",setor2 = \"{txtSetor2}\",Nascto2 = {mskNascto2},ddd = \"{txtDdd}\","
            "fone0 = \"{txtFone0}\",fone1 = \"{txtFone1}\",fone2 = \"{txtFone2}\",email = \"{txtEmail}\","
            "homepage = \"{txtHomepage}\",fax = \"{txtFax}\",obs = \"{txtObs}\" Where codigo = {codigo}"),
        .apaga = QStringLiteral("DELETE * FROM PJuridica WHERE codigo = {codigo}"),
        .campos = camposDoCadastro(),
        .obrigatorios = {{QStringLiteral("txtNome"), QStringLiteral("O campo Nome é obrigatório !")}},
        .colunasGrade = {QStringLiteral("codigo"), QStringLiteral("nome"), QStringLiteral("tipo")},
        .titulosGrade = {QStringLiteral("Código"), QStringLiteral("Nome"), QStringLiteral("Tipo")},
        .relatorio = {QStringLiteral("SELECT * FROM PJuridica WHERE codigo = {chave}"), colunasDoCadastro(),
                      QStringLiteral("CadJud.rpt"), QStringLiteral("Cadastro de Pessoa Jurídica")},
        .pesquisa = {QStringLiteral("frmPesquisa"), QStringLiteral("Pesquisa de Pessoa Jurídica"), QStringLiteral("PJuridica"), 4},
        .codigoInvalido = QStringLiteral("Todo registro deve ter um código numérico válido !"),
    };
    return r;
}

frmCpj::frmCpj(QWidget *parent) : RecordForm(descricao(), parent)
{
    Ui::frmCpj ui;
    ui.setupUi(this);
    ligaEndereco(*this, {QStringLiteral("Sigla do estado inválida, digite corretamente ou deixe o campo vazio"),
                         QStringLiteral("Erro"), true});
    aoPerderFoco(ui.mskCnpj, [c = ui.mskCnpj] { confereCGC(c); });
    aoPerderFoco(ui.mskCpf, [c = ui.mskCpf] { confereCPF(c); });
    carrega();
}

void frmCpj::valoresPadrao() { findChild<QWidget *>(QStringLiteral("optTipo3"))->setProperty("checked", true); }

QStringList frmCpj::linhaGrade(const Recordset &rs) const
{
    QStringList cells = RecordForm::linhaGrade(rs);
    const int tipo = int(val(cells[2]));
    if (tipo >= 0 && tipo < 4)
        cells[2] = QString::fromUtf8(kTipos[tipo]);
    return cells;
}

RowFiller frmCpj::linhaRelatorio() const
{
    return [](const Recordset &r) {
        QStringList l;
        for (const QString &c : colunasDoCadastro())
            l << r[c == QLatin1String("hp") ? QStringLiteral("homepage") : c].text();
        return l;
    };
}
