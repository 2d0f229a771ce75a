#include "core/validators.h"

#include "core/conversions.h"
#include "core/prompter.h"

namespace {
// Tax-number check: modulus 11 with weights from the right, 2 up to maxWeight
// and back to 2. Shows `message` when the digits do not agree.
bool validaModulo11(const QString &text, int length, int maxWeight, const QString &message)
{
    const QString trimmed = trimBlanks(text);
    if (trimmed.size() != length)
        return false;
    QString base = trimmed.left(length - 2);
    for (int round = 0; round < 2; ++round) {
        int soma = 0;
        int weight = 2;
        for (qsizetype i = base.size() - 1; i >= 0; --i) {
            const QChar c = base.at(i);
            soma += weight * (c.isDigit() ? c.digitValue() : 0);
            weight = weight == maxWeight ? 2 : weight + 1;
        }
        int dv = (soma / 11 + 1) * 11 - soma;
        if (dv >= 10)
            dv = 0;
        base += QChar(u'0' + dv);
    }
    if (base == text)
        return true;
    MsgBox(message, vbCritical, QStringLiteral("Erro"));
    return false;
}
} // namespace

bool ValidaCPF(const QString &text) { return validaModulo11(text, 11, 11, QStringLiteral("CPF Inválido !")); }

bool ValidaCGC(const QString &text) { return validaModulo11(text, 14, 9, QStringLiteral("CGC Inválido !")); }

bool NomeUsuarioValido(const QString &nome) { return !nome.contains(u'\''); }
