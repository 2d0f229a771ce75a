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

int codigoDoUsuario(const QString &usuario)
{
    Connection sistema;
    sistema.ConnectionTimeout = 100;
    sistema.Open(session.conSistema);
    int codigo = -1;
    {
        Recordset rs = sistema.Execute(QStringLiteral("SELECT codigo FROM Usuarios WHERE nome = '") + usuario
                                       + QStringLiteral("'"));
        if (!rs.eof())
            codigo = int(rs[QStringLiteral("codigo")].toInt());
    }
    sistema.Close();
    return codigo;
}
