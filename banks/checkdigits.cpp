#include "banks/checkdigits.h"

#include "core/conversions.h"
#include "core/installation.h"

#include <array>
#include <limits>

bool passesNumericTest(const QString &text)
{
    const QString t = text.trimmed();
    int i = 0;
    if (i < t.size() && (t[i] == u'+' || t[i] == u'-'))
        ++i;
    bool anyDigit = false;
    bool comma = false;
    for (; i < t.size(); ++i) {
        const QChar c = t[i];
        if (c.isDigit() && c.unicode() < 128)
            anyDigit = true;
        else if (c == u',' && !comma)
            comma = true;
        else if (c == u'.' && !comma)
            continue; // thousands point of the Brazilian locale
        else
            return false;
    }
    return anyDigit;
}

namespace {

// The sum is a 16-bit integer in the original; 43 digits never come near its
// limit, but a sum that would leave it stops the run as the original did.
int16_t add16(int16_t sum, int product)
{
    const int s = int(sum) + int(int16_t(product));
    if (s > std::numeric_limits<int16_t>::max() || s < std::numeric_limits<int16_t>::min())
        throw RunFailure(QStringLiteral("Estouro"));
    return int16_t(s);
}

// The numeric value of one character: a digit gives its value, anything else 0.
int digitValue(QChar c)
{
    return (c >= u'0' && c <= u'9') ? c.unicode() - u'0' : 0;
}

// Weighted sum from the last character to the first, with weights that cycle
// from `first` up or down to `last` and back to `first`.
int16_t cyclicSum(const QString &digits, int first, int last)
{
    const int step = first < last ? 1 : -1;
    int16_t sum = 0;
    int weight = first;
    for (int pos = digits.size() - 1; pos >= 0; --pos) {
        sum = add16(sum, digitValue(digits[pos]) * weight);
        weight = (weight == last) ? first : weight + step;
    }
    return sum;
}

} // namespace

QString Modulo10(const QString &digits)
{
    if (!passesNumericTest(digits))
        return QString();
    int16_t sum = 0;
    int weight = 2;
    for (int pos = digits.size() - 1; pos >= 0; --pos) {
        int product = digitValue(digits[pos]) * weight;
        if (product > 9)
            product = product / 10 + product % 10;
        sum = add16(sum, product);
        weight = weight == 2 ? 1 : 2;
    }
    const int r = sum % 10;
    return QString::number(r == 0 ? 0 : 10 - r);
}

QString Modulo10Pesos(const QString &digits)
{
    if (!passesNumericTest(digits))
        return QString();
    static constexpr std::array<int, 4> weights{3, 7, 9, 1};
    int16_t sum = 0;
    int index = 0;
    for (int pos = digits.size() - 1; pos >= 0; --pos) {
        const int weight = weights[size_t(index)];
        sum = add16(sum, digitValue(digits[pos]) * weight);
        // Bank 151's jump: after weight 3 on the 15th character from the left,
        // the next weight is 1 instead of 7.
        if (weight == 3 && pos + 1 == 15)
            index = 3;
        else
            index = (index + 1) % 4;
    }
    const int r = sum % 10;
    return QString::number(r == 0 ? 0 : 10 - r);
}

QString Modulo11Barra(const QString &digits)
{
    if (!passesNumericTest(digits))
        return QString();
    const int r = cyclicSum(digits, 9, 2) % 11;
    return QString::number((r == 0 || r == 10) ? 1 : r);
}

QString Modulo11Resto(const QString &digits)
{
    if (!passesNumericTest(digits))
        return QString();
    const int r = cyclicSum(digits, 9, 2) % 11;
    return QString::number(r == 10 ? 0 : r);
}

QString Modulo11Letra(const QString &digits)
{
    if (!passesNumericTest(digits))
        return QString();
    const int d = 11 - cyclicSum(digits, 2, 7) % 11;
    if (d == 10)
        return QStringLiteral("P");
    return QString::number(d == 11 ? 0 : d);
}

QString Modulo11Ascendente(const QString &digits)
{
    if (!passesNumericTest(digits))
        return QString();
    const int d = 11 - cyclicSum(digits, 2, 9) % 11;
    if (d == 10)
        return QStringLiteral("0");
    return QString::number(d == 11 ? 1 : d);
}

QString Modulo11Direto(const QString &digits)
{
    if (!passesNumericTest(digits))
        return QString();
    const int r = cyclicSum(digits, 2, 7) % 11;
    return QString::number(r == 10 ? 0 : r);
}

int16_t Fator_Vencimento(const QDate &vencimento, bool ciclico)
{
    if (!vencimento.isValid())
        throw RunFailure(QStringLiteral("Tipo incompatível"));
    static const int base = dateToDays(QDate(1997, 10, 7));
    int days = dateToDays(vencimento) - base;
    // 22/02/2025 is day 10000: there the banks' factor went back to 1000.
    if (ciclico && days >= 10000)
        days = 1000 + (days - 1000) % 9000;
    if (days > std::numeric_limits<int16_t>::max() || days < std::numeric_limits<int16_t>::min())
        throw RunFailure(QStringLiteral("Estouro"));
    return int16_t(days);
}

int16_t Fator_Vencimento(const QDate &vencimento) { return Fator_Vencimento(vencimento, fatorVencimentoCiclico); }

bool cabeNoCodigoDeBarras(Money valor)
{
    // 99.999.999,99 and whatever rounds to it: ten digits of centavos.
    constexpr int64_t limite = 999'999'999'949;
    return valor.units() <= limite && valor.units() >= -limite;
}

QString valorBarra(Money valor)
{
    if (!cabeNoCodigoDeBarras(valor))
        throw RunFailure(kValorForaDoCodigo);
    return formatMoney(Money::fromUnits(valor.units() * 100), QStringLiteral("0000000000"));
}

QString Monta_Barra(const QString &banco, const QString &moeda, Money valor, int16_t fator,
                    const QString &campoLivre)
{
    const QString s = banco + moeda + QString::number(fator) + valorBarra(valor) + campoLivre;
    // With a factor of 4 digits this is the first 4 characters, the digit and
    // the last 39; a factor of 3 or 5 digits makes the code shorter or longer.
    return s.left(4) + Modulo11Barra(s) + s.mid(4);
}

QString Monta_Linha(const QString &banco, const QString &t, const QString &k, Money valor, int16_t fator)
{
    Q_UNUSED(banco);
    const QString a = t.left(9);
    const QString b = t.mid(9, 10);
    const QString c = t.right(10);
    const QString campo1 = a.left(5) + u'.' + a.mid(5, 4) + Modulo10(a);
    const QString campo2 = b.left(5) + u'.' + b.right(5) + Modulo10(b);
    const QString campo3 = c.left(5) + u'.' + c.right(5) + Modulo10(c);
    return campo1 + u' ' + campo2 + u' ' + campo3 + u' ' + k + u' ' + QString::number(fator) + valorBarra(valor);
}
