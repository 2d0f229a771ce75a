// habtool recalc FILE: the repair of the totals of stored receipts.
#include "billing/ajuste.h"
#include "tools/habtool/billing_cmd.h"
#include "tools/habtool/habtool.h"

static int cmdRecalc(const QStringList &argumentos)
{
    QStringList args = argumentos;
    const bool sim = tiraSim(args);
    if (args.size() != 1)
        return 2;
    if (!bancoPresente(args[0]))
        return kArgumentoInvalido;
    ArquivoCondominio arq(args[0], sim);
    out(QStringLiteral("recibos %1").arg(recalculaTotais(arq.con)));
    return 0;
}

static const bool registrado = registerCommand("recalc", "FILE", "refaz os totais dos recibos", cmdRecalc);
