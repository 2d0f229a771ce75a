#pragma once
// A condominium file in a temporary program directory, filled by the tests
// with apartments, receipts and the bank parameters they need.
#include "core/datastore.h"
#include "support/fixtures.h"

#include <QString>

class BankFile {
public:
    BankFile()
    {
        con.Open(dir.makeCondominium(1));
        dir.useInSession(1);
    }
    ~BankFile() { con.Close(); }

    void exec(const QString &sql) { con.Execute(sql); }

    void apto(const QString &codigo, const QString &nome, const QString &cpf, const QString &tuso = QStringLiteral("1"))
    {
        exec(QStringLiteral("INSERT INTO Aptos (codigo, nome, cpfpro, enderecopro, numeropro, bairropro, ceppro, "
                            "cidadepro, ufpro, tuso, inquilino, cpfinq, cnpjinq, enderecoinq, numeroinq, bairroinq, "
                            "cepinq, cidadeinq, ufinq) VALUES ('%1', \"%2\", '%3', \"Rua das Flores\", '10', "
                            "\"Centro\", '01001-000', \"São Paulo\", 'SP', '%4', \"Inquilino de %1\", "
                            "'111.222.333-44', '12.345.678/0001-95', \"Av. Brasil\", '2000', \"Jardins\", "
                            "'04567-890', \"Santos\", 'SP')")
                 .arg(codigo, nome, cpf, tuso));
    }

    void recibo(const QString &codigo, const QString &codap, const QString &vtotal, const QString &vencto,
                const QString &situacao = QStringLiteral("A"))
    {
        exec(QStringLiteral("INSERT INTO Recibos (codigo, codap, nemis, demis, dvencto, situacao, nrbco, vtotal) "
                            "VALUES ('%1', '%2', \"1\", #01/05/2007#, #%3#, '%4', '', '%5')")
                 .arg(codigo, codap, vencto, situacao, vtotal));
    }

    void parametros(const QString &banco, const QString &agencia, const QString &conta, const QString &convenio,
                    const QString &carteira, const QString &nn = QString())
    {
        exec(QStringLiteral("UPDATE Parametros Set RBanco = '%1', RitauAg = '%2', RitauCc = '%3', RConvenio = '%4', "
                            "RitauCart = '%5', RitauNn = '%6', RitauCd = \"Condomínio Solar\", "
                            "RitauCgc = '__.___.___/____-__', RitauCpf = '123.456.789-09', RitauEsp = '05', "
                            "Ritaui1 = '2', Ritaui2 = '' Where codigo = 1")
                 .arg(banco, agencia, conta, convenio, carteira, nn));
    }

    // One column of a receipt, as text.
    QString coluna(const QString &codigo, const QString &col)
    {
        Recordset rs = con.Execute(QStringLiteral("SELECT * FROM Recibos WHERE codigo = '") + codigo
                                   + QStringLiteral("'"));
        return rs.eof() ? QStringLiteral("<sem recibo>") : rs[col].text();
    }

    QString ritauNn()
    {
        Recordset rs = con.Execute(QStringLiteral("SELECT RitauNn FROM Parametros WHERE codigo = 1"));
        return rs["RitauNn"].text();
    }

    QString path() const { return dir.path() + QStringLiteral("Con001.mdb"); }

    TempProgramDir dir;
    Connection con;
};
