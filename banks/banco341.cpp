// Itaú: the account carries its own digit in its last position.
#include "banks/bancos.h"

#include "banks/checkdigits.h"
#include "core/conversions.h"

Boleto Banco341(const ReciboBanco &r, const ParametrosBanco &p)
{
    Boleto b;
    const QString carteira = ZeroEsq(p.carteiraNua(), 3);
    const QString c = ZeroEsq(digitos(p.cedente), 6);
    const QString n = ZeroEsq(r.codigo, 8);
    b.dv = Modulo10(p.agencia + c.left(5) + carteira + n);
    b.nrbco = n + b.dv;
    b.campoLivre = carteira + n + b.dv + p.agencia + c + QStringLiteral("000");
    completaBoleto(b, QStringLiteral("341"), r);
    return b;
}
