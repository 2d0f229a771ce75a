#include "core/session.h"

Session session;

QString connectionString(const QString &sysPath, const QString &fileName, const QString &dbSenha)
{
    return kConnectionPrefix + sysPath + fileName + QStringLiteral(";Jet OLEDB:Database Password=") + dbSenha
        + QStringLiteral(";");
}
