#include "banks/bancos.h"

#include "banks/checkdigits.h"
#include "core/conversions.h"

QString ParametrosBanco::carteiraNua() const
{
    return bareText(carteira);
}

QString digitos(const QString &masked)
{
    QString text = masked;
    return SoNumero(text);
}

void completaBoleto(Boleto &b, const QString &banco, const ReciboBanco &r)
{
    b.fator = Fator_Vencimento(r.dvencto);
    b.barra = Monta_Barra(banco, QStringLiteral("9"), r.vtotal, b.fator, b.campoLivre);
    b.linha = Monta_Linha(banco, constanteBanco(banco) + b.campoLivre, b.barra.mid(4, 1), r.vtotal, b.fator);
}

Boleto calculaBoleto(const QString &banco, const ReciboBanco &r, const ParametrosBanco &p, int32_t contador422)
{
    if (!cabeNoCodigoDeBarras(r.vtotal)) {
        Boleto refused;
        refused.recusa = QStringLiteral("Recibo ") + r.codigo + QStringLiteral(": ") + kValorForaDoCodigo;
        return refused;
    }
    if (banco == u"001")
        return Banco001(r, p);
    if (banco == u"104")
        return Banco104(r, p);
    if (banco == u"151")
        return Banco151(r, p);
    if (banco == u"237")
        return Banco237(r, p);
    if (banco == u"341")
        return Banco341(r, p);
    if (banco == u"353")
        return Banco353(r, p);
    if (banco == u"409")
        return Banco409(r, p);
    if (banco == u"422")
        return Banco422(r, p, contador422);
    Boleto refused;
    refused.recusa = QStringLiteral("Programado apenas para os Bancos 001, 104, 151, 237, 341, 353, 409 e 422");
    return refused;
}
