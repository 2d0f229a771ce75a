// habtool cpf TEXT / habtool cgc TEXT: the tax-number checks of the forms.
#include "core/conversions.h"
#include "core/validators.h"
#include "tools/habtool/habtool.h"

namespace {

int check(const QStringList &args, const char *name, bool (*valida)(const QString &))
{
    if (args.size() != 1) {
        err(QStringLiteral("uso: habtool %1 TEXTO").arg(QString::fromLatin1(name)));
        return 2;
    }
    // The routine's message, if any, goes to standard error through the prompter.
    out(valida(args[0]) ? QStringLiteral("True") : QStringLiteral("False"));
    return 0;
}

int cmdCpf(const QStringList &args) { return check(args, "cpf", ValidaCPF); }
int cmdCgc(const QStringList &args) { return check(args, "cgc", ValidaCGC); }

const bool registeredCpf = registerCommand("cpf", "TEXTO", "confere os dígitos de um CPF (True/False)", cmdCpf);
const bool registeredCgc = registerCommand("cgc", "TEXTO", "confere os dígitos de um CNPJ (True/False)", cmdCgc);

} // namespace
