// habtool dv ROUTINE DIGITS: the check digit of one routine.
#include "tools/habtool/habtool.h"

#include "banks/checkdigits.h"

#include <map>

namespace {
int cmdDv(const QStringList &args)
{
    using Routine = QString (*)(const QString &);
    static const std::map<QString, Routine> routines{
        {QStringLiteral("Modulo10"), Modulo10},
        {QStringLiteral("Modulo10Pesos"), Modulo10Pesos},
        {QStringLiteral("Modulo11Barra"), Modulo11Barra},
        {QStringLiteral("Modulo11Resto"), Modulo11Resto},
        {QStringLiteral("Modulo11Letra"), Modulo11Letra},
        {QStringLiteral("Modulo11Ascendente"), Modulo11Ascendente},
        {QStringLiteral("Modulo11Direto"), Modulo11Direto},
    };
    if (args.isEmpty() || args.size() > 2) {
        err(QStringLiteral("uso: habtool dv ROTINA DIGITOS"));
        return 2;
    }
    const auto it = routines.find(args[0]);
    if (it == routines.end()) {
        err(QStringLiteral("rotina desconhecida: ") + args[0]);
        return 2;
    }
    out(it->second(args.value(1)));
    return 0;
}

const bool registered = registerCommand(
    "dv", "ROTINA DIGITOS",
    "digito de Modulo10, Modulo10Pesos, Modulo11Barra, Modulo11Resto, Modulo11Letra, Modulo11Ascendente ou "
    "Modulo11Direto",
    cmdDv);
} // namespace
