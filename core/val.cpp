// val(): reads the longest number at the start of the text, the way the
// original runtime did. Built by hand so that the C locale (pt_BR under Qt)
// never turns the point into something else.
#include "core/val.h"

#include <charconv>
#include <cmath>
#include <string>

namespace {

char16_t unit(QChar c) { return c.unicode(); }
char16_t unit(char c) { return char16_t(static_cast<unsigned char>(c)); }

bool isSkipped(char16_t c) { return c == u' ' || c == u'\t' || c == u'\n' || c == u'\r'; }

// Reads digits of the given base; returns false when there are none.
template <typename Text>
double readRadix(const Text &text, qsizetype i, int base)
{
    // The original read these as 16/32-bit integers and kept the sign bit;
    // a plain non-negative reading is enough for the codes the system has.
    double value = 0;
    for (; i < qsizetype(text.size()); ++i) {
        const char16_t c = unit(text[i]);
        if (isSkipped(c))
            continue;
        int d = -1;
        if (c >= u'0' && c <= u'9')
            d = c - u'0';
        else if (base == 16 && c >= u'a' && c <= u'f')
            d = c - u'a' + 10;
        else if (base == 16 && c >= u'A' && c <= u'F')
            d = c - u'A' + 10;
        if (d < 0 || d >= base)
            break;
        value = value * base + d;
    }
    return value;
}

template <typename Text>
double valImpl(const Text &text)
{
    const qsizetype n = qsizetype(text.size());
    qsizetype i = 0;
    auto at = [&](qsizetype k) -> char16_t { return k < n ? unit(text[k]) : u'\0'; };
    auto skip = [&] { while (i < n && isSkipped(at(i))) ++i; };

    skip();
    if (at(i) == u'&') {
        qsizetype k = i + 1;
        while (k < n && isSkipped(at(k))) ++k;
        const char16_t p = at(k);
        if (p == u'H' || p == u'h')
            return readRadix(text, k + 1, 16);
        if (p == u'O' || p == u'o')
            return readRadix(text, k + 1, 8);
        return 0;
    }

    // Collect the number's characters in the C form, then convert with
    // from_chars, which is locale-independent.
    std::string s;
    s.reserve(32);
    if (at(i) == u'-' || at(i) == u'+') {
        if (at(i) == u'-')
            s += '-';
        ++i;
    }
    bool digits = false, point = false;
    for (;; ++i) {
        skip();
        const char16_t c = at(i);
        if (c >= u'0' && c <= u'9') {
            s += char(c);
            digits = true;
        } else if (c == u'.' && !point) {
            s += '.';
            point = true;
        } else {
            break;
        }
    }
    if (!digits)
        return 0;
    const char16_t e = at(i);
    if (e == u'E' || e == u'e' || e == u'D' || e == u'd') {
        // The exponent counts only when digits follow it.
        qsizetype k = i + 1;
        std::string ex = "e";
        while (k < n && isSkipped(at(k))) ++k;
        if (at(k) == u'-' || at(k) == u'+') {
            ex += char(at(k));
            ++k;
        }
        bool expDigits = false;
        for (;; ++k) {
            while (k < n && isSkipped(at(k))) ++k;
            const char16_t c = at(k);
            if (c < u'0' || c > u'9')
                break;
            ex += char(c);
            expDigits = true;
        }
        if (expDigits)
            s += ex;
    }
    double value = 0;
    const auto r = std::from_chars(s.data(), s.data() + s.size(), value);
    if (r.ec == std::errc::result_out_of_range)
        return s[0] == '-' ? -HUGE_VAL : HUGE_VAL;
    return value;
}

} // namespace

double val(QStringView text) { return valImpl(text); }
double val(std::string_view text) { return valImpl(text); }
