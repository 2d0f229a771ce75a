// Banco do Brasil: agreement of 7 positions, number of 17 digits.
#include "banks/bancos.h"

#include "banks/checkdigits.h"
#include "core/conversions.h"

Boleto Banco001(const ReciboBanco &r, const ParametrosBanco &p)
{
    Boleto b;
    if (p.convenio.size() != 7) {
        b.recusa = QStringLiteral("Atenção, Não foi estabelecido o número de convênio de 7 posições para o "
                                  "Banco do Brasil... o código de barra será lançado errado");
        return b;
    }
    const QString cod = ZeroEsq(r.codigo, 6);
    const QString base = p.convenio + ZeroEsq(cod, 10);
    b.dv = Modulo11Letra(base);
    b.nrbco = base + b.dv;
    // The digit stays out of the free field: a "P" must never reach the bar code.
    b.campoLivre = QStringLiteral("000000") + base + p.carteira.left(2);
    completaBoleto(b, QStringLiteral("001"), r);
    return b;
}
