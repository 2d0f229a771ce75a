// habtool embaralha adm|senha TEXT: the scrambled password, between brackets
// so that its leading blank shows.
#include "core/conversions.h"
#include "core/scramble.h"
#include "tools/habtool/habtool.h"

namespace {

int cmdEmbaralha(const QStringList &args)
{
    if (args.size() != 2 || (args[0] != QLatin1String("adm") && args[0] != QLatin1String("senha"))) {
        err(QStringLiteral("uso: habtool embaralha adm|senha TEXTO"));
        return 2;
    }
    const QString scrambled = args[0] == QLatin1String("adm") ? EmbaralhaAdm(args[1]) : EmbaralhaSenha(args[1]);
    out(u'[' + scrambled + u']');
    return 0;
}

const bool registered = registerCommand("embaralha", "adm|senha TEXTO",
                                        "a senha embaralhada como o sistema a grava, entre [ e ]", cmdEmbaralha);

} // namespace
