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
    if (!isDateText(args[0])) {
        err(QStringLiteral("data inválida: ") + args[0]);
        return 2;
    }
    out(QString::number(Fator_Vencimento(dateFromText(args[0]))));
    return 0;
}

const bool registered = registerCommand("fator", "dd/mm/aaaa", "fator de vencimento do boleto", cmdFator);
} // namespace
