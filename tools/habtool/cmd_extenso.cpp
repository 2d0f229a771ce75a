// habtool extenso VALUE [W1 W2]: the amount in words as a receipt prints it.
#include "core/extenso.h"
#include "core/session.h"
#include "tools/habtool/habtool.h"

namespace {

int cmdExtenso(const QStringList &args)
{
    if (args.size() != 1 && args.size() != 3) {
        err(QStringLiteral("uso: habtool extenso VALOR [LARGURA1 LARGURA2]"));
        return 2;
    }
    int w1 = 37, w2 = 77;
    if (args.size() == 3) {
        bool ok1 = false, ok2 = false;
        w1 = args[1].toInt(&ok1);
        w2 = args[2].toInt(&ok2);
        if (!ok1 || !ok2 || w1 < 1 || w2 < 1) {
            err(QStringLiteral("larguras inválidas: %1 %2").arg(args[1], args[2]));
            return 2;
        }
    }
    // A value that does not fit fails here or in the layout (RunFailure),
    // which the console reports on standard error with status 1.
    out(Extenso(args[0]));
    QuebraExtenso(w1, w2);
    out(session.linhaExt1);
    out(session.linhaExt2);
    return 0;
}

const bool registered = registerCommand("extenso", "VALOR [LARGURA1 LARGURA2]",
                                        "o valor por extenso e as duas linhas do recibo (37 e 77)", cmdExtenso);

} // namespace
