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
        const QString valor = VirgulaPonto(arg.mid(igual + 1));
        if (nome == QLatin1String("honor"))
            a.honor = Money::fromDouble(val(valor));
        else if (nome == QLatin1String("honcb"))
            a.honcb = Money::fromDouble(val(valor));
        else if (nome == QLatin1String("honfr"))
            a.honfr = Money::fromDouble(val(valor));
        else if (nome == QLatin1String("normal"))
            a.normal = int(val(valor));
        else if (nome == QLatin1String("apos"))
            a.apos = int(val(valor));
        else
            return 2;
    }
    ArquivoCondominio arq(arquivo, sim);
    const bool feito = porTipo ? ajustaPorTipo(arq.con, {AjusteTipo{tipo, a}}) : ajustaTodos(arq.con, a);
    return feito ? 0 : 1;
}

static const bool registrado =
    registerCommand("ajusta", "FILE [honor=V] [honcb=V] [honfr=V] [normal=D] [apos=D] [--tipo CODE] [--sim]",
                    "ajuste de taxas e dia de vencimento", cmdAjusta);
