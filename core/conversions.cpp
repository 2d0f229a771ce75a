#include "core/conversions.h"

#include <array>
#include <charconv>
#include <cmath>
#include <string>

QString trimBlanks(const QString &text)
{
    qsizetype first = 0, last = text.size();
    while (first < last && text.at(first) == u' ')
        ++first;
    while (last > first && text.at(last - 1) == u' ')
        --last;
    return text.mid(first, last - first);
}

namespace {

// The runtime's message for an argument out of range (a negative repeat
// count, a character code outside 0..255).
const QString kInvalidArgument = QStringLiteral("Chamada de procedimento ou argumento inválido");

// ---- Decimal digits of a number ----------------------------------------------
// A number as decimal digits: value = 0.d1d2d3... x 10^point, so that `point`
// is the count of digits before the decimal point (it may be zero or negative).
// Zero has no digits.
struct Decimal {
    bool negative = false;
    std::string digits;
    int point = 0;
};

void stripZeros(Decimal &d)
{
    while (!d.digits.empty() && d.digits.back() == '0')
        d.digits.pop_back();
    size_t lead = 0;
    while (lead < d.digits.size() && d.digits[lead] == '0')
        ++lead;
    d.digits.erase(0, lead);
    d.point -= int(lead);
    if (d.digits.empty())
        d.point = 0;
}

// The value rounded to `significant` digits, the way the runtime turns a
// double (15 digits) or a single (7 digits) into decimal before showing it.
template <typename F>
Decimal decimalOf(F value, int significant)
{
    Decimal d;
    if (value == 0 || !std::isfinite(value))
        return d;
    d.negative = value < 0;
    char buf[64];
    const auto res = std::to_chars(buf, buf + sizeof buf, std::fabs(value), std::chars_format::scientific,
                                   significant - 1);
    const std::string text(buf, res.ptr);
    const size_t e = text.find('e');
    for (size_t i = 0; i < e; ++i)
        if (text[i] != '.')
            d.digits += text[i];
    d.point = std::stoi(text.substr(e + 1)) + 1;
    stripZeros(d);
    return d;
}

Decimal decimalOf(Money value)
{
    Decimal d;
    const int64_t units = value.units();
    if (units == 0)
        return d;
    d.negative = units < 0;
    // The magnitude through unsigned arithmetic, so that the lowest value has one too.
    const uint64_t magnitude = d.negative ? uint64_t(0) - uint64_t(units) : uint64_t(units);
    d.digits = std::to_string(magnitude);
    d.point = int(d.digits.size()) - 4;
    stripZeros(d);
    return d;
}

// Rounds to `places` decimals, half away from zero, as the format pictures do.
void roundTo(Decimal &d, int places)
{
    if (d.digits.empty())
        return;
    const int keep = d.point + places;  // digits that stay
    if (keep >= int(d.digits.size()))
        return;
    if (keep < 0) {
        d.digits.clear();
        d.point = 0;
        return;
    }
    const bool up = d.digits[size_t(keep)] >= '5';
    d.digits.resize(size_t(keep));
    if (up) {
        int i = keep - 1;
        while (i >= 0 && d.digits[size_t(i)] == '9') {
            d.digits[size_t(i)] = '0';
            --i;
        }
        if (i < 0) {
            d.digits.insert(d.digits.begin(), '1');
            ++d.point;
        } else {
            ++d.digits[size_t(i)];
        }
    }
    stripZeros(d);
}

// The digits before the decimal point ("" for a value below one).
std::string integerDigits(const Decimal &d)
{
    if (d.point <= 0)
        return {};
    std::string s = d.digits.substr(0, size_t(std::min<int>(d.point, int(d.digits.size()))));
    s.append(size_t(std::max<int>(0, d.point - int(d.digits.size()))), '0');
    return s;
}

// The first `places` digits after the decimal point.
std::string fractionDigits(const Decimal &d, int places)
{
    std::string s;
    for (int i = 0; i < places; ++i) {
        const int index = d.point + i;
        s += (index >= 0 && index < int(d.digits.size())) ? d.digits[size_t(index)] : '0';
    }
    return s;
}

// The runtime's general number text: `significant` digits at most, no
// thousands separator, the exponent form ("1E+15", "1,5E-05") for very large
// and very small values. `keepLeadingZero` false gives ".5" instead of "0.5".
QString generalText(const Decimal &d, int significant, QChar separator, bool keepLeadingZero)
{
    if (d.digits.empty())
        return QStringLiteral("0");
    QString text;
    if (d.negative)
        text += u'-';
    const int exponent = d.point - 1;
    if (exponent < -4 || exponent >= significant) {
        text += QChar(d.digits[0]);
        if (d.digits.size() > 1) {
            text += separator;
            text += QString::fromLatin1(d.digits.substr(1));
        }
        text += exponent < 0 ? QStringLiteral("E-") : QStringLiteral("E+");
        text += QStringLiteral("%1").arg(std::abs(exponent), 2, 10, QChar(u'0'));
        return text;
    }
    const std::string whole = integerDigits(d);
    if (!whole.empty())
        text += QString::fromLatin1(whole);
    else if (keepLeadingZero)
        text += u'0';
    const int fraction = int(d.digits.size()) - d.point;
    if (fraction > 0) {
        text += separator;
        text += QString::fromLatin1(fractionDigits(d, fraction));
    }
    return text;
}

// ---- Format pictures -------------------------------------------------------------
// A numeric picture: literal text before the first digit placeholder, the
// placeholders ('0' shows a digit always, '#' only when there is one), a
// thousands mark (',') between integer placeholders, a decimal point ('.'),
// and literal text after the last placeholder. Only the first section (up to
// ';') is used.
QString applyNumberPicture(Decimal d, const QString &pictureText)
{
    QString picture = pictureText.section(u';', 0, 0);
    qsizetype firstPlaceholder = -1, lastPlaceholder = -1;
    for (qsizetype i = 0; i < picture.size(); ++i) {
        const QChar c = picture.at(i);
        if (c == u'0' || c == u'#') {
            if (firstPlaceholder < 0)
                firstPlaceholder = i;
            lastPlaceholder = i;
        }
    }
    if (firstPlaceholder < 0) {
        // A picture without placeholders prints itself.
        return picture;
    }
    const QString prefix = picture.left(firstPlaceholder);
    const QString suffix = picture.mid(lastPlaceholder + 1);
    const QString body = picture.mid(firstPlaceholder, lastPlaceholder - firstPlaceholder + 1);
    const qsizetype pointAt = body.indexOf(u'.');
    const QString integerPicture = pointAt < 0 ? body : body.left(pointAt);
    const QString fractionPicture = pointAt < 0 ? QString() : body.mid(pointAt + 1);

    int places = 0, optionalPlaces = 0;
    for (const QChar c : fractionPicture) {
        if (c == u'0' || c == u'#') {
            ++places;
            optionalPlaces = c == u'#' ? optionalPlaces + 1 : 0;
        }
    }
    int minimumDigits = 0;
    bool seenZero = false;
    for (const QChar c : integerPicture) {
        if (c == u'0')
            seenZero = true;
        if (seenZero && (c == u'0' || c == u'#'))
            ++minimumDigits;
    }
    const bool grouping = integerPicture.contains(u',');

    roundTo(d, places);
    std::string whole = integerDigits(d);
    if (int(whole.size()) < minimumDigits)
        whole.insert(0, size_t(minimumDigits) - whole.size(), '0');

    QString number;
    for (size_t i = 0; i < whole.size(); ++i) {
        if (grouping && i > 0 && (whole.size() - i) % 3 == 0)
            number += u'.';
        number += QChar(whole[i]);
    }
    if (pointAt >= 0) {
        std::string fraction = fractionDigits(d, places);
        // Trailing '#' places drop trailing zeros.
        for (int i = 0; i < optionalPlaces && !fraction.empty() && fraction.back() == '0'; ++i)
            fraction.pop_back();
        number += u',';
        number += QString::fromLatin1(fraction);
    }
    // A negative value keeps its sign even when it rounds to zero ("-0,00"),
    // as the runtime's pictures did.
    return (d.negative ? QStringLiteral("-") : QString()) + prefix + number + suffix;
}

QString keepDigits(QString &text, bool withMinus)
{
    text = trimBlanks(text);
    QString result;
    bool commaTaken = false;
    for (const QChar c : text) {
        const char16_t u = c.unicode();
        if (u >= 48 && u <= 58) {
            result += c;
        } else if (u == u',' && !commaTaken) {
            result += c;
            commaTaken = true;
        } else if (u == u'-' && withMinus) {
            result += c;
        }
    }
    return result;
}

const char *const kMonthNames[12] = {"janeiro", "fevereiro", "março", "abril",   "maio",     "junho",
                                     "julho",   "agosto",    "setembro", "outubro", "novembro", "dezembro"};
const char *const kDayNames[7] = {"segunda-feira", "terça-feira", "quarta-feira", "quinta-feira",
                                  "sexta-feira",   "sábado",      "domingo"};

bool allDigits(const QString &s)
{
    if (s.isEmpty())
        return false;
    for (const QChar c : s)
        if (c < u'0' || c > u'9')
            return false;
    return true;
}

// Years below 100: 00 to 29 are 2000 to 2029, 30 to 99 are 1930 to 1999.
int fullYear(int year)
{
    if (year >= 100)
        return year;
    return year < 30 ? 2000 + year : 1900 + year;
}

QDate dayZero() { return QDate(1899, 12, 30); }

} // namespace

// ---- Field helpers ------------------------------------------------------------------

QString ZeroEsq(const QString &text, int width)
{
    const QString trimmed = trimBlanks(text);
    if (trimmed.size() > width)
        throw RunFailure(kInvalidArgument);
    return QString(width - trimmed.size(), u'0') + trimmed;
}

QString padZeros(const QString &text, int width)
{
    const QString trimmed = trimBlanks(text);
    return trimmed.size() >= width ? trimmed : ZeroEsq(trimmed, width);
}

QString VirgulaPonto(const QString &text)
{
    QString result = trimBlanks(text);
    result.replace(u',', u'.');
    return result;
}

double Arredonda(Money value, int places)
{
    const double scale = std::pow(10.0, places);
    return std::floor(value.toDouble() * scale + 0.5) / scale;
}

QString SoNumero(QString &text) { return keepDigits(text, false); }

QString SoNumeroSinal(QString &text) { return keepDigits(text, true); }

QString UltimoDia(const QDate &date)
{
    switch (date.month()) {
    case 1: case 3: case 5: case 7: case 8: case 10: case 12:
        return QStringLiteral("31");
    case 2:
        // Every year that divides by four, the turns of the centuries too.
        return date.year() % 4 == 0 ? QStringLiteral("29") : QStringLiteral("28");
    default:
        return QStringLiteral("30");
    }
}

QString NomeMes(int month)
{
    static const char *const names[11] = {"Janeiro", "Fevereiro", "Março",    "Abril",   "Maio",    "Junho",
                                          "Julho",   "Agosto",    "Setembro", "Outubro", "Novembro"};
    if (month >= 1 && month <= 11)
        return QString::fromUtf8(names[month - 1]);
    return QStringLiteral("Dezembro");
}

QString SemAcento(const QString &text)
{
    QString result = text;
    for (QChar &c : result) {
        const char16_t u = c.unicode();
        if (u >= 192 && u <= 197) c = u'A';
        else if (u == 199) c = u'C';
        else if (u >= 200 && u <= 203) c = u'E';
        else if (u >= 204 && u <= 207) c = u'I';
        else if (u == 209) c = u'N';
        else if (u >= 210 && u <= 214) c = u'O';
        else if (u >= 217 && u <= 220) c = u'U';
        else if (u >= 224 && u <= 229) c = u'a';
        else if (u == 231) c = u'c';
        else if (u >= 232 && u <= 235) c = u'e';
        else if (u >= 236 && u <= 239) c = u'i';
        else if (u == 241) c = u'n';
        else if (u >= 242 && u <= 246) c = u'o';
        else if (u >= 249 && u <= 252) c = u'u';
        else if (u == 39) c = u' ';
    }
    return result;
}

// ---- Number to text ---------------------------------------------------------------------

QString moneyText(Money value) { return generalText(decimalOf(value), 19, u',', true); }

QString doubleText(double value) { return generalText(decimalOf(value, 15), 15, u',', true); }

QString singleText(float value) { return generalText(decimalOf(value, 7), 7, u',', true); }

QString strText(double value)
{
    const QString text = generalText(decimalOf(value, 15), 15, u'.', false);
    return text.startsWith(u'-') ? text : u' ' + text;
}

QString formatNumber(double value, const QString &picture)
{
    return applyNumberPicture(decimalOf(value, 15), picture);
}

QString formatMoney(Money value, const QString &picture) { return applyNumberPicture(decimalOf(value), picture); }

QString formatText(const QString &text, const QString &picture)
{
    // '@' takes a character or a blank, '&' a character or nothing, filled
    // from the right; characters beyond the placeholders go in front.
    QString result;
    qsizetype next = text.size() - 1;
    for (qsizetype i = picture.size() - 1; i >= 0; --i) {
        const QChar c = picture.at(i);
        if (c == u'@' || c == u'&') {
            if (next >= 0)
                result.prepend(text.at(next--));
            else if (c == u'@')
                result.prepend(u' ');
        } else {
            result.prepend(c);
        }
    }
    if (next >= 0)
        result.prepend(text.left(next + 1));
    return result;
}

QString formatNumberText(const QString &text, const QString &picture)
{
    const QString t = trimBlanks(text);
    qsizetype i = 0;
    if (i < t.size() && (t.at(i) == u'-' || t.at(i) == u'+'))
        ++i;
    qsizetype digits = 0;
    bool comma = false;
    for (; i < t.size(); ++i) {
        const QChar c = t.at(i);
        if (c.isDigit() && c.unicode() < 128)
            ++digits;
        else if (c == u',' && !comma)
            comma = true;
        else
            return text;
    }
    if (digits == 0)
        return text;
    std::string number = QString(t).replace(u',', u'.').toStdString();
    if (number.front() == '+')
        number.erase(0, 1);
    double value = 0;
    std::from_chars(number.data(), number.data() + number.size(), value);
    return formatNumber(value, picture);
}

QString formatDate(const QDate &date, const QString &picture)
{
    if (!date.isValid())
        return QString();
    QString result;
    qsizetype i = 0;
    while (i < picture.size()) {
        const QChar c = picture.at(i).toLower();
        qsizetype run = 1;
        while (i + run < picture.size() && picture.at(i + run).toLower() == c)
            ++run;
        if (c == u'd') {
            if (run == 1) result += QString::number(date.day());
            else if (run == 2) result += QStringLiteral("%1").arg(date.day(), 2, 10, QChar(u'0'));
            else if (run == 3) result += QString::fromUtf8(kDayNames[date.dayOfWeek() - 1]).left(3);
            else result += QString::fromUtf8(kDayNames[date.dayOfWeek() - 1]);
        } else if (c == u'm') {
            if (run == 1) result += QString::number(date.month());
            else if (run == 2) result += QStringLiteral("%1").arg(date.month(), 2, 10, QChar(u'0'));
            else if (run == 3) result += QString::fromUtf8(kMonthNames[date.month() - 1]).left(3);
            else result += QString::fromUtf8(kMonthNames[date.month() - 1]);
        } else if (c == u'y' && run >= 3) {
            result += QStringLiteral("%1").arg(date.year(), 4, 10, QChar(u'0'));
        } else if (c == u'y' && run == 2) {
            result += QStringLiteral("%1").arg(date.year() % 100, 2, 10, QChar(u'0'));
        } else {
            result += picture.mid(i, run);
        }
        i += run;
    }
    return result;
}

// ---- The accounting's rounding step ----------------------------------------------

Money roundedMoney(Money value, int places) { return Money::fromDouble(Arredonda(value, places)); }

float accumulateSingle(float accumulator, Money value)
{
    const Money sum = Money::fromDouble(double(accumulator)) + roundedMoney(value, 2);
    return float(roundedMoney(sum, 2).toDouble());
}

// ---- Dates -----------------------------------------------------------------------------------

int dateToDays(const QDate &date) { return int(dayZero().daysTo(date)); }

QDate daysToDate(int days) { return dayZero().addDays(days); }

QDate dateFromText(const QString &ddmmyyyy)
{
    const QString text = trimBlanks(ddmmyyyy);
    const QChar separator = text.contains(u'/') ? u'/' : u'-';
    const QStringList parts = text.split(separator);
    for (const QString &part : parts)
        if (!allDigits(part) || part.size() > 4)
            return QDate();
    if (parts.size() == 3) {
        if (parts[0].size() > 2 || parts[1].size() > 2)
            return QDate();
        return QDate(fullYear(parts[2].toInt()), parts[1].toInt(), parts[0].toInt());
    }
    if (parts.size() == 2) {
        // "mm/yyyy" is the first of that month; "dd/mm" a day of this year.
        if (parts[0].size() > 2)
            return QDate();
        if (parts[1].size() > 2)
            return QDate(parts[1].toInt(), parts[0].toInt(), 1);
        return QDate(QDate::currentDate().year(), parts[1].toInt(), parts[0].toInt());
    }
    return QDate();
}

bool isDateText(const QString &ddmmyyyy) { return dateFromText(ddmmyyyy).isValid(); }

// ---- Masks -------------------------------------------------------------------------------------

QString bareText(const QString &masked)
{
    QString result;
    for (const QChar c : masked)
        if (c.isLetterOrNumber())
            result += c;
    return result;
}
