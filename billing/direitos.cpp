#include "billing/direitos.h"

#include "core/datastore.h"
#include "core/session.h"

bool temDireito(const QString &coluna, const QString &usuario)
{
    Connection sistema;
    sistema.ConnectionTimeout = 100;
    sistema.Open(session.conSistema);
    bool direito = false;
    {
        Recordset rs = sistema.Execute(QStringLiteral("SELECT ") + coluna
                                       + QStringLiteral(" FROM Usuarios WHERE nome = '") + usuario
                                       + QStringLiteral("'"));
        if (!rs.eof())
            direito = rs[coluna].toBool();
    }
    sistema.Close();
    return direito;
}
