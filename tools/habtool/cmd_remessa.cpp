// habtool remessa FILE OUT: the remittance run (cmdGerarR) on a condominium
// file, with the bank parameters of its Parametros row.
#include "tools/habtool/habtool.h"

#include "banks/calcbarra.h"
#include "banks/remessa.h"
#include "core/conversions.h"
#include "core/datastore.h"
#include "core/prompter.h"
#include "core/session.h"

#include <QDir>
#include <QFileInfo>

namespace {
int uso()
{
    err(QStringLiteral("uso: habtool remessa ARQUIVO SAIDA [--select \"SQL\"] [--data dd/mm/aaaa] [--inquilino] [--sim]"));
    return 2;
}

int cmdRemessa(const QStringList &args)
{
    Argumentos a;
    if (!leArgumentos(args, {QStringLiteral("--select"), QStringLiteral("--data")},
                      {QStringLiteral("--inquilino"), QStringLiteral("--sim")}, a) ||
        a.posicionais.size() != 2)
        return uso();
    QDate data;
    if (!leDataGeracao(a, data) || !bancoPresente(a.posicionais[0]))
        return kArgumentoInvalido;
    Connection con;
    con.Open(conexaoDoArquivo(a.posicionais[0]));

    const ParametrosGravados g = leParametrosBanco(con);
    FormRemessa form;
    form.dados.parametros = parametrosDoForm(g);
    form.dados.cedenteNome = g.ritaucd;
    form.dados.cgc = g.ritaucgc.trimmed().isEmpty() ? kCgcVazio : g.ritaucgc;
    form.dados.cpf = g.ritaucpf.trimmed().isEmpty() ? kCpfVazio : g.ritaucpf;
    form.dados.especie = g.ritauesp;
    form.dados.instrucao1 = g.ritaui1;
    form.dados.instrucao2 = g.ritaui2;
    form.dados.dataGeracao = data;
    form.nnr = g.ritaunn;
    form.inquilino = a.chaves.contains(QStringLiteral("--inquilino"));
    form.selecao = a.valores.value(QStringLiteral("--select"), selecaoPadraoBanco());
    // The run writes folder "/" name ".TXT": OUT names the file, with or without ".TXT".
    const QFileInfo saida(a.posicionais[1]);
    form.pasta = QDir::cleanPath(saida.absolutePath());
    form.nomeArquivo = saida.fileName();
    if (form.nomeArquivo.endsWith(QStringLiteral(".TXT")))
        form.nomeArquivo.chop(4);

    HeadlessPrompter respostas;
    respostas.yesToAll = a.chaves.contains(QStringLiteral("--sim"));
    Prompter *anterior = setPrompter(&respostas);
    FimRemessa fim;
    try {
        fim = cmdGerarR(con, form);
    } catch (...) {
        setPrompter(anterior);
        throw;
    }
    setPrompter(anterior);
    con.Close();
    return fim == FimRemessa::Gerado ? 0 : 1;
}

const bool registered = registerCommand(
    "remessa", "ARQUIVO SAIDA [--select \"SQL\"] [--data dd/mm/aaaa] [--inquilino] [--sim]",
    "gera o arquivo remessa dos bancos 341, 422 e 151 (Gerar Remessa)", cmdRemessa);
} // namespace
