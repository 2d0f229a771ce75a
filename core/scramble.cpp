#include "core/scramble.h"

#include "core/conversions.h"
#include "core/errors.h"

#include <array>
#include <cstdint>

namespace {
// The runtime's message for a character code outside 0..255.
const QString kInvalidArgument = QStringLiteral("Chamada de procedimento ou argumento inválido");

// ---- Windows-1252, the system's character codes ------------------------------
constexpr std::array<char16_t, 32> kCp1252High = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

int ansiCode(QChar c)
{
    const char16_t u = c.unicode();
    if (u < 0x80 || (u >= 0xA0 && u <= 0xFF))
        return u;
    for (int i = 0; i < 32; ++i)
        if (kCp1252High[size_t(i)] == u)
            return 0x80 + i;
    return '?';  // not in the code page: the runtime gives a question mark
}

QChar ansiChar(int code)
{
    if (code < 0 || code > 255)
        throw RunFailure(kInvalidArgument);
    if (code >= 0x80 && code < 0xA0)
        return QChar(kCp1252High[size_t(code - 0x80)]);
    return QChar(char16_t(code));
}

QString scramble(const QString &text, int parity, int offset)
{
    int16_t soma = 0;
    QString saida;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const int p = int(i) + 1;
        const int c = ansiCode(text.at(i)) - offset;
        const int sum = int(soma) + c;
        if (sum > 32767 || sum < -32768)
            throw RunFailure(QStringLiteral("Estouro de capacidade"));
        soma = int16_t(sum);
        if (p % 2 == parity)
            saida += ansiChar(p + c);
    }
    return strText(double(soma) * double(soma) / 2.0) + saida;
}
} // namespace

QString EmbaralhaAdm(const QString &text) { return scramble(text, 0, 0); }

QString EmbaralhaSenha(const QString &text) { return scramble(text, 1, 5); }
