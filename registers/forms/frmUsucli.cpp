#include "registers/forms/frmUsucli.h"

#include "core/conversions.h"
#include "core/installation.h"
#include "core/prompter.h"
#include "core/session.h"
#include "core/val.h"
#include "core/widgets/campos.h"
#include "core/widgets/endereco.h"
#include "core/widgets/keyboard.h"
#include "core/widgets/maskedit.h"
#include "ui_frmUsucli.h"

#include <QFile>

namespace {
Campo texto(const char *controle, const char *coluna) { return {QString::fromLatin1(controle), QString::fromLatin1(coluna)}; }
Campo mascara(const char *controle, const char *coluna)
{
    return {QString::fromLatin1(controle), QString::fromLatin1(coluna), Tipo::Mascara};
}
}

const Registro &frmUsucli::descricao()
{
    static const Registro r{
        .form = QStringLiteral("frmUsucli"),
        .conexao = Conexao::Sistema,
        .chave = Chave::Numero,
        .busca = QStringLiteral("SELECT * FROM clientes Where Codigo = {codigo}"),
        .existe = QStringLiteral("SELECT * FROM clientes Where Codigo = {codigo}"),
        .contagem = QStringLiteral("SELECT Count(codigo) As I FROM Clientes"),
        .lista = QStringLiteral("SELECT * FROM Clientes ORDER BY codigo"),
        .insere = QStringLiteral(
            "INSERT INTO clientes(codigo,nome,endereco,numero,complemento,bairro,cidade,uf,cep,cgc,cpf,"
            "ddd,fone1,fone2,fax,email,homepage,obs) VALUES( '{codigo}',\"{txtnome}\",\"{txtEndereco}\","
            "\"{txtNumero}\",\"{txtComplemento}\",\"{txtBairro}\",\"{txtCidade}\",\"{txtUf}\",\"{cep}\","
            "\"{mskcgc}\",\"{mskCpf}\",\"{txtDdd}\",\"{txtFone}\",\"{txtFone2}\",\"{txtFax}\",\"{txtemail}\","
            "\"{txthomepage}\",\"{txtObs}\")"),
        .altera = QStringLiteral(
            "Update clientes Set nome = \"{txtnome}\",endereco = \"{txtEndereco}\",numero = \"{txtNumero}\","
            "complemento = \"{txtComplemento}\",bairro = \"{txtBairro}\",cidade = \"{txtCidade}\",uf = \"{txtUf}\","
            "cep = \"{cep}\",cgc = \"{mskcgc}\",cpf = \"{mskCpf}\",ddd = \"{txtDdd}\",fone1 = \"{txtFone}\","
            "fone2 = \"{txtFone2}\",fax = \"{txtFax}\",email = \"{txtemail}\",homepage = \"{txthomepage}\","
            "obs = \"{txtObs}\" Where codigo = {codigo}"),
        .apaga = QStringLiteral("DELETE FROM Clientes WHERE codigo = {codigo}"),
        .campos = {texto("txtnome", "nome"), texto("txtEndereco", "endereco"), texto("txtNumero", "numero"),
                   texto("txtComplemento", "complemento"), texto("txtBairro", "bairro"), texto("txtCidade", "cidade"),
                   texto("txtUf", "uf"), mascara("mskCep", "cep"), mascara("mskcgc", "cgc"), mascara("mskCpf", "cpf"),
                   texto("txtDdd", "ddd"), texto("txtFone", "fone1"), texto("txtFone2", "fone2"),
                   texto("txtFax", "fax"), texto("txtemail", "email"), texto("txthomepage", "homepage"),
                   texto("txtObs", "obs")},
        .calculados = {QStringLiteral("cep")},
        .obrigatorios = {{QStringLiteral("txtnome"), QStringLiteral("O campo Empresa é obrigatório !")}},
        .colunasGrade = {QStringLiteral("codigo"), QStringLiteral("nome"), QStringLiteral("cidade")},
        .titulosGrade = {QStringLiteral("Código"), QStringLiteral("Nome"), QStringLiteral("Cidade")},
        .pesquisa = {QStringLiteral("frmPesquisa"), QStringLiteral("Pesquisa de Condomínios"), QStringLiteral("Clientes"), 3},
        .codigoInvalido = QStringLiteral("Todo registro deve ter um código numérico válido !"),
        .abandono = QStringLiteral("Você não pode abandonar uma operação em andamento, grave ou cancele antes..."),
    };
    return r;
}

frmUsucli::frmUsucli(QWidget *parent) : RecordForm(descricao(), parent)
{
    Ui::frmUsucli ui;
    ui.setupUi(this);
    ligaEndereco(*this, {QStringLiteral("Sigla do estado inválida, digite corretamente ou deixe o campo vazio"),
                         QStringLiteral("Erro"), false});
    aoPerderFoco(ui.mskcgc, [c = ui.mskcgc] { confereCGC(c); });
    aoPerderFoco(ui.mskCpf, [c = ui.mskCpf] { confereCPF(c); });
    // The form works on the system file, and so, from now on, does every form
    // that opens conAtiva (frmPesquisa among them).
    session.conAtiva = session.conSistema;
    carrega();
}

void frmUsucli::valoresExtras(QHash<QString, QString> &valores) const
{
    // An empty postal code is written as zeros.
    const auto *cep = findChild<MaskEdit *>(QStringLiteral("mskCep"));
    valores.insert(QStringLiteral("cep"), cep->textoPuro().isEmpty() ? QStringLiteral("00000-000") : cep->textoMascarado());
}

void frmUsucli::antesDasRegras() { PreencheVazios(*fraDados_); }

void frmUsucli::aposGravar(const QString &codigo, bool eraNovo)
{
    if (!eraNovo)
        return;
    const QString arquivo = nomeArquivoCondominio(int(val(codigo)));
    if (QFile::exists(session.sysPath + arquivo))
        return;
    if (MsgBox(QStringLiteral("Não existe banco de dados para este cliente, criar ? "), vbYesNo,
               QStringLiteral("Criar Arquivo..."))
        == vbYes)
        copiaMatriz(session.sysPath, arquivo);
}

QString frmUsucli::perguntaExclusao(const QString &codigo) const
{
    return QStringLiteral("Recomendamos que seja feita uma cópia de segurança do arquivo Con") + ZeroEsq(codigo, 3)
        + QStringLiteral(".mdb pois ele será apagado e um novo arquivo totalmente vazio será criado, deseja realmente "
                         "fazer a exclusão deste condomínio ?");
}

int frmUsucli::estiloExclusao() const { return vbYesNo + vbCritical + vbDefaultButton2; }

void frmUsucli::antesDeApagar(const QString &codigo)
{
    // No new file is made here: the next activation of the code offers it.
    const QString arquivo = session.sysPath + nomeArquivoCondominio(int(val(codigo)));
    if (QFile::exists(arquivo) && !QFile::remove(arquivo))
        throw RunFailure(QStringLiteral("Não foi possível apagar o arquivo ") + arquivo);
}
