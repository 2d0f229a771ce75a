// habtool barras FILE: the run of "Gerrar Barras" on a condominium file, with
// the bank parameters of its Parametros row.
#include "tools/habtool/habtool.h"

#include "banks/calcbarra.h"
#include "core/conversions.h"
#include "core/datastore.h"
#include "core/session.h"

namespace {
int uso()
{
    err(QStringLiteral("uso: habtool barras ARQUIVO [--data dd/mm/aaaa] [--select \"SQL\"] [--recibo NNNNNN]"));
    return 2;
}

int cmdBarras(const QStringList &args)
{
    Argumentos a;
    if (!leArgumentos(args, {QStringLiteral("--data"), QStringLiteral("--select"), QStringLiteral("--recibo")}, {}, a) ||
        a.posicionais.size() != 1)
        return uso();
    QDate data;
    int recibo = 0;
    if (!leDataGeracao(a, data) || !bancoPresente(a.posicionais[0]) ||
        (a.valores.contains(QStringLiteral("--recibo")) &&
         !leInteiro(QStringLiteral("--recibo"), a.valores[QStringLiteral("--recibo")], 0, 999999, recibo)))
        return kArgumentoInvalido;
    Connection con;
    con.Open(conexaoDoArquivo(a.posicionais[0]));

    FormCalcBarra form;
    form.parametros = parametrosDoForm(leParametrosBanco(con));
    form.dataGeracao = data;
    form.selecao = a.valores.value(QStringLiteral("--select"), selecaoPadraoBanco());
    FimCalcBarra fim;
    if (a.valores.contains(QStringLiteral("--recibo")))
        fim = cmdCalcBarra(con, form, a.valores[QStringLiteral("--recibo")]);
    else
        fim = cmdCalcBarraG(con, form);
    con.Close();
    return (fim == FimCalcBarra::Calculado || fim == FimCalcBarra::Banco353) ? 0 : 1;
}

const bool registered = registerCommand("barras", "ARQUIVO [--data dd/mm/aaaa] [--select \"SQL\"] [--recibo NNNNNN]",
                                        "calcula numero, codigo de barras e linha digitavel dos recibos (Gerrar Barras)",
                                        cmdBarras);
} // namespace
