// habtool fator dd/mm/yyyy: the due-date factor of a slip.
#include "tools/habtool/habtool.h"

#include "banks/checkdigits.h"
#include "core/conversions.h"

namespace {
int cmdFator(const QStringList &args)
{
    if (args.size() != 1) {
        err(QStringLiteral("uso: habtool fator dd/mm/aaaa"));
        return 2;
    }
    QDate vencimento;
    if (!leData(QStringLiteral("vencimento"), args[0], vencimento))
        return kArgumentoInvalido;
    out(QString::number(Fator_Vencimento(vencimento)));
    return 0;
}

const bool registered = registerCommand("fator", "dd/mm/aaaa", "fator de vencimento do boleto", cmdFator);
} // namespace
