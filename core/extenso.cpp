#include "core/extenso.h"

#include "core/conversions.h"
#include "core/session.h"

#include <array>

namespace {

int digit(QChar c) { return c.isDigit() ? c.digitValue() : 0; }

// The value of a group of digits as text ("050" is 50).
int groupValue(const QString &digits)
{
    int v = 0;
    for (const QChar c : digits)
        v = v * 10 + digit(c);
    return v;
}

// The word table, built anew for each call by the two flags: index 1 to 19
// the units and teens, 20 + n the tens (n = 2..9), 30 the hundred alone,
// 31 the hundred in a group, 30 + n the hundreds (n = 2..9).
std::array<QString, 40> wordTable(bool masculino, bool marcado)
{
    std::array<QString, 40> w;
    auto set = [&](int i, const char *marked, const char *plain) {
        w[size_t(i)] = QString::fromUtf8(marcado ? marked : plain);
    };
    auto gendered = [&](int i, const char *mMarked, const char *fMarked, const char *mPlain, const char *fPlain) {
        w[size_t(i)] = QString::fromUtf8(marcado ? (masculino ? mMarked : fMarked) : (masculino ? mPlain : fPlain));
    };
    gendered(1, "UM", "U-MA", "UM", "UMA");
    gendered(2, "DO-IS", "DU-AS", "DOIS", "DUAS");
    set(3, "TRES", "TRES");
    set(4, "QUA-TRO", "QUATRO");
    set(5, "CIN-CO", "CINCO");
    set(6, "SE-IS", "SEIS");
    set(7, "SE-TE", "SETE");
    set(8, "OI-TO", "OITO");
    set(9, "NO-VE", "NOVE");
    set(10, "DEZ", "DEZ");
    set(11, "ON-ZE", "ONZE");
    set(12, "DO-ZE", "DOZE");
    set(13, "TRE-ZE", "TREZE");
    set(14, "QUA-TOR-ZE", "QUATORZE");
    set(15, "QUIN-ZE", "QUINZE");
    set(16, "DE-ZES-SE-IS", "DEZESSEIS");
    set(17, "DE-ZES-SE-TE", "DEZESSETE");
    set(18, "DE-ZOI-TO", "DEZOITO");
    set(19, "DE-ZE-NO-VE", "DEZENOVE");
    set(22, "VIN-TE", "VINTE");
    set(23, "TRIN-TA", "TRINTA");
    set(24, "QUA-REN-TA", "QUARENTA");
    set(25, "CIN-QUEN-TA", "CINQUENTA");
    set(26, "SES-SEN-TA", "SESSENTA");
    set(27, "SE-TEN-TA", "SETENTA");
    set(28, "OI-TEN-TA", "OITENTA");
    set(29, "NO-VEN-TA", "NOVENTA");
    set(30, "CEM", "CEM");
    set(31, "CEN-TO", "CENTO");
    gendered(32, "DU-ZEN-TOS", "DU-ZEN-TAS", "DUZENTOS", "DUZENTAS");
    gendered(33, "TRE-ZEN-TOS", "TRE-ZEN-TAS", "TREZENTOS", "TREZENTAS");
    gendered(34, "QUA-TRO-CEN-TOS", "QUA-TRO-CEN-TAS", "QUATROCENTOS", "QUATROCENTAS");
    gendered(35, "QUI-NHEN-TOS", "QUI-NHEN-TAS", "QUINHENTOS", "QUINHENTAS");
    gendered(36, "SEIS-CEN-TOS", "SEIS-CEN-TAS", "SEISCENTOS", "SEISCENTAS");
    gendered(37, "SE-TE-CEN-TOS", "SE-TE-CEN-TAS", "SETECENTOS", "SETECENTAS");
    gendered(38, "OI-TO-CEN-TOS", "OI-TO-CEN-TAS", "OITOCENTOS", "OITOCENTAS");
    gendered(39, "NO-VE-CEN-TOS", "NO-VE-CEN-TAS", "NOVECENTOS", "NOVECENTAS");
    return w;
}

// A run of asterisks; a negative count is the runtime's failure, as in ZeroEsq.
QString asterisks(qsizetype count)
{
    if (count < 0)
        throw RunFailure(QStringLiteral("Chamada de procedimento ou argumento inválido"));
    return QString(count, u'*');
}

// Doubles blanks of line 1 until it is w1 wide, alternating between a search
// forward from the start and a search backward from the end. Positions are
// 0-based here; a search that finds nothing starts again from its own end.
void widen(QString &linha1, int w1)
{
    if (!linha1.contains(u' '))
        return;
    qsizetype forward = 0;
    qsizetype backward = -1;  // from the end
    bool forwardTurn = true;
    while (linha1.size() < w1) {
        qsizetype k;
        if (forwardTurn) {
            k = forward < linha1.size() ? linha1.indexOf(u' ', forward) : -1;
            if (k < 0)
                k = linha1.indexOf(u' ');
            forward = k + 2;
        } else {
            k = backward >= 0 ? linha1.lastIndexOf(u' ', backward) : -1;
            if (k < 0)
                k = linha1.lastIndexOf(u' ');
            backward = k - 2;
        }
        linha1.insert(k + 1, u' ');
        forwardTurn = !forwardTurn;
    }
}

} // namespace

QString TrioExtenso(const QString &texto, bool masculino, bool marcado)
{
    const QString s = ZeroEsq(texto, 3);
    const int c = digit(s.at(0)), d = digit(s.at(1)), u = digit(s.at(2));
    const int du = d * 10 + u;
    const int v = c * 100 + du;
    const auto w = wordTable(masculino, marcado);

    QString result;
    if (c == 1)
        result = w[31];
    else if (c >= 2)
        result = w[size_t(30 + c)];
    if (c > 0 && du > 0)
        result += QStringLiteral(" E ");
    if (du >= 10 && du <= 19) {
        result += w[size_t(du)];
    } else {
        if (d >= 2)
            result += w[size_t(20 + d)];
        if (d > 0 && u > 0)
            result += QStringLiteral(" E ");
        if (u > 0)
            result += w[size_t(u)];
    }
    if (v == 100)
        result = w[30];
    return result;
}

QString Extenso(const QString &valor)
{
    QString s = ZeroEsq(valor, 12);
    if (s.at(9) != u',') {
        if (s.at(10) == u',')
            s = s.mid(1, 9) + u',' + s.at(11) + u'0';
        else
            s = s.mid(3, 9) + QStringLiteral(",00");
    }
    const QString milhoes = s.mid(0, 3), milhares = s.mid(3, 3), centenas = s.mid(6, 3), centavos = s.mid(10, 2);
    const int mi = groupValue(milhoes), ml = groupValue(milhares), ce = groupValue(centenas),
              ct = groupValue(centavos);

    QString &r = session.sql;
    r.clear();
    if (mi > 0) {
        r += TrioExtenso(milhoes, true, true);
        r += mi == 1 ? QStringLiteral(" MI-LHÃO") : QStringLiteral(" MI-LHÕES");
        if (ml + ce == 0) {
            r += QStringLiteral(" DE RE-AIS");
            if (ct > 0)
                r += QStringLiteral(" E ");
        }
        if (ml > 0 && ce == 0)
            r += QStringLiteral(" E ");
        if (ml == 0 && ce > 0)
            r += QStringLiteral(" E ");
        if (ml > 0 && ce > 0)
            r += u' ';
    }
    if (ml > 0) {
        r += TrioExtenso(milhares, true, true);
        r += QStringLiteral(" MIL");
        if (ce == 0) {
            r += QStringLiteral(" RE-AIS");
            if (ct > 0)
                r += QStringLiteral(" E ");
        }
        if (ce > 0 && ct == 0)
            r += QStringLiteral(" E ");
        if (ce > 0 && ct > 0)
            r += u' ';
    }
    if (ce > 0) {
        r += TrioExtenso(centenas, true, true);
        r += ce == 1 ? QStringLiteral(" RE-AL") : QStringLiteral(" RE-AIS");
        if (ct > 0)
            r += QStringLiteral(" E ");
    }
    if (ct > 0) {
        r += TrioExtenso(centavos, true, true);
        r += ct == 1 ? QStringLiteral(" CEN-TA-VO") : QStringLiteral(" CEN-TA-VOS");
    }
    return r;
}

void QuebraExtenso(int largura1, int largura2)
{
    QString t = session.sql + u'-';
    QString linha1 = QStringLiteral("(");
    QString linha2;

    // Line 1: whole syllables while they fit, else text up to a blank.
    for (;;) {
        const qsizetype p = t.indexOf(u'-') + 1;
        if (p > 0 && linha1.size() + p < largura1) {
            linha1 += t.left(p);
            t.remove(0, p);
            linha1.truncate(linha1.indexOf(u'-'));
            continue;
        }
        const qsizetype b = t.indexOf(u' ') + 1;
        if (b > 0 && linha1.size() + b <= largura1) {
            if (linha1.endsWith(u'-'))
                linha1.chop(1);
            linha1 += t.left(b);
            t.remove(0, b);
            continue;
        }
        break;
    }
    linha1 = trimBlanks(linha1);
    if (!t.isEmpty())
        widen(linha1, largura1);

    const qsizetype mark = linha1.indexOf(u'-');
    if (mark >= 0 && trimBlanks(t).isEmpty()) {
        linha1.truncate(mark);
    } else {
        // Line 2: syllables until the text ends or the width is reached.
        for (;;) {
            const qsizetype p = t.indexOf(u'-') + 1;
            linha2 += t.left(p);
            t.remove(0, p);
            if (p == 0 || linha2.size() >= largura2)
                break;
            linha2.truncate(linha2.indexOf(u'-'));
        }
    }

    if (linha2.size() < 4) {
        linha1 += u')';
        if (linha1.size() < largura1) {
            linha1 = trimBlanks(linha1);
            linha1 = linha1 + u' ' + asterisks(largura1 - linha1.size() - 1);
        }
    } else {
        linha2 += u')';
    }
    linha2 = trimBlanks(linha2);
    linha2 = linha2 + u' ' + asterisks(largura2 - linha2.size() - 1);

    session.linhaExt1 = linha1;
    session.linhaExt2 = linha2;
    session.sql.clear();
}
