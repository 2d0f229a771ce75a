// ValidaUF lives apart from the other validators: it is the only one that
// reads the database.
#include "core/validators.h"

#include "core/datastore.h"
#include "core/session.h"

bool ValidaUF(const QString &uf)
{
    Connection con;
    con.ConnectionTimeout = 100;
    con.Open(session.conSistema);
    Recordset rs = con.Execute(QStringLiteral("SELECT UF FROM Estados Where UF = '") + uf + u'\'');
    const bool found = !rs.eof();
    rs.Close();
    con.Close();
    return found;
}
