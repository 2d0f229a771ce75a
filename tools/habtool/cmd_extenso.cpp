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
    if (args.size() == 3 && (!leInteiro(QStringLiteral("LARGURA1"), args[1], 1, 1000, w1) ||
                             !leInteiro(QStringLiteral("LARGURA2"), args[2], 1, 1000, w2)))
        return kArgumentoInvalido;
    if (!valorBemFormado(args[0])) {
        err(QStringLiteral("VALOR inválido: \"%1\" (um valor como 1234,56)").arg(args[0]));
        return kArgumentoInvalido;
    }
    // A value that does not fit fails here or in the layout (RunFailure),
    // which the console reports on standard error with status 1.
    out(Extenso(QString(args[0]).replace(u'.', u',')));
    QuebraExtenso(w1, w2);
    out(session.linhaExt1);
    out(session.linhaExt2);
    return 0;
}

const bool registered = registerCommand("extenso", "VALOR [LARGURA1 LARGURA2]",
                                        "o valor por extenso e as duas linhas do recibo (37 e 77)", cmdExtenso);

} // namespace
