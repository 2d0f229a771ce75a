// habtool ajusta FILE [honor=V] [honcb=V] [honfr=V] [normal=D] [apos=D] [--tipo CODE] [--sim]:
// the fee and due-day adjustment, for all apartments or one apartment type.
#include "billing/ajuste.h"
#include "core/conversions.h"
#include "tools/habtool/billing_cmd.h"
#include "tools/habtool/habtool.h"

static int cmdAjusta(const QStringList &argumentos)
{
    QStringList args = argumentos;
    const bool sim = tiraSim(args);
    if (args.isEmpty())
        return 2;
    const QString arquivo = args.takeFirst();
    AjusteTaxas a;
    QString tipo;
    bool porTipo = false;
    for (int i = 0; i < args.size(); ++i) {
        const QString &arg = args[i];
        if (arg == QLatin1String("--tipo")) {
            if (i + 1 >= args.size())
                return 2;
            tipo = args[++i];
            porTipo = true;
            continue;
        }
        const qsizetype igual = arg.indexOf(QLatin1Char('='));
        if (igual < 0)
            return 2;
        const QString nome = arg.left(igual);
        const QString valor = arg.mid(igual + 1);
        bool lido = false;
        if (nome == QLatin1String("honor"))
            lido = leValor(nome, valor, a.honor);
        else if (nome == QLatin1String("honcb"))
            lido = leValor(nome, valor, a.honcb);
        else if (nome == QLatin1String("honfr"))
            lido = leValor(nome, valor, a.honfr);
        else if (nome == QLatin1String("normal"))
            lido = leInteiro(nome, valor, 1, 31, a.normal);
        else if (nome == QLatin1String("apos"))
            lido = leInteiro(nome, valor, 1, 31, a.apos);
        else
            err(QStringLiteral("argumento desconhecido: ") + arg);
        if (!lido)
            return kArgumentoInvalido;
    }
    if (!bancoPresente(arquivo))
        return kArgumentoInvalido;
    ArquivoCondominio arq(arquivo, sim);
    const bool feito = porTipo ? ajustaPorTipo(arq.con, {AjusteTipo{tipo, a}}) : ajustaTodos(arq.con, a);
    return feito ? 0 : 1;
}

static const bool registrado =
    registerCommand("ajusta", "FILE [honor=V] [honcb=V] [honfr=V] [normal=D] [apos=D] [--tipo CODE] [--sim]",
                    "ajuste de taxas e dia de vencimento", cmdAjusta);
