// habtool barras FILE: the run of "Gerrar Barras" on a condominium file, with
// the bank parameters of its Parametros row.
#include "tools/habtool/habtool.h"

#include "banks/calcbarra.h"
#include "core/conversions.h"
#include "core/datastore.h"
#include "core/session.h"

#include <QFileInfo>
#include <QMap>

namespace {
int uso()
{
    err(QStringLiteral("uso: habtool barras ARQUIVO [--data dd/mm/aaaa] [--select \"SQL\"] [--recibo NNNNNN]"));
    return 2;
}

int cmdBarras(const QStringList &args)
{
    QString arquivo;
    QMap<QString, QString> opcoes;
    for (qsizetype i = 0; i < args.size(); ++i) {
        const QString &a = args[i];
        if (a == u"--data" || a == u"--select" || a == u"--recibo") {
            if (i + 1 >= args.size())
                return uso();
            opcoes[a] = args[++i];
        } else if (arquivo.isEmpty() && !a.startsWith(u"--")) {
            arquivo = QFileInfo(a).absoluteFilePath();
        } else {
            return uso();
        }
    }
    if (arquivo.isEmpty())
        return uso();
    QDate data = QDate::currentDate();
    if (opcoes.contains(QStringLiteral("--data"))) {
        if (!isDateText(opcoes[QStringLiteral("--data")])) {
            err(QStringLiteral("data inválida: ") + opcoes[QStringLiteral("--data")]);
            return 2;
        }
        data = dateFromText(opcoes[QStringLiteral("--data")]);
    }
    if (!QFileInfo::exists(arquivo)) {
        err(QStringLiteral("arquivo não encontrado: ") + arquivo);
        return 2;
    }
    Connection con;
    const QFileInfo info(arquivo);
    con.Open(connectionString(info.absolutePath() + QStringLiteral("/"), info.fileName(), QString()));

    FormCalcBarra form;
    form.parametros = parametrosDoForm(leParametrosBanco(con));
    form.dataGeracao = data;
    form.selecao = opcoes.value(QStringLiteral("--select"), selecaoPadraoBanco());
    FimCalcBarra fim;
    if (opcoes.contains(QStringLiteral("--recibo")))
        fim = cmdCalcBarra(con, form, opcoes[QStringLiteral("--recibo")]);
    else
        fim = cmdCalcBarraG(con, form);
    con.Close();
    return (fim == FimCalcBarra::Calculado || fim == FimCalcBarra::Banco353) ? 0 : 1;
}

const bool registered = registerCommand("barras", "ARQUIVO [--data dd/mm/aaaa] [--select \"SQL\"] [--recibo NNNNNN]",
                                        "calcula numero, codigo de barras e linha digitavel dos recibos (Gerrar Barras)",
                                        cmdBarras);
} // namespace
