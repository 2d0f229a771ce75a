#pragma once
// A condominium file with a small chart of accounts and a journal of 2008,
// for the accounting tests.
#include "core/conversions.h"
#include "core/datastore.h"
#include "core/money.h"
#include "core/session.h"
#include "support/fixtures.h"

#include <gtest/gtest.h>
#include <ostream>

inline void PrintTo(const Money &m, std::ostream *os) { *os << m.toDouble(); }

// UTF-8 text as a QString, short for the many literals of these tests.
inline QString S(const char *t) { return QString::fromUtf8(t); }

// "1234,56" -> Money, so that expectations read as the screen shows amounts.
inline Money reais(const char *text) { return Money::fromDouble(val(VirgulaPonto(QString::fromUtf8(text)))); }

class Contabil : public ::testing::Test {
protected:
    TempProgramDir dir;
    Connection con;

    void SetUp() override
    {
        const QString cs = dir.makeCondominium(1);
        dir.useInSession(1);
        con.ConnectionTimeout = 100;
        con.Open(cs);
        con.Execute(QStringLiteral("DELETE FROM Plano"));  // the template's chart
    }
    void TearDown() override { con.Close(); }

    // An account; its monthly columns start at zero.
    void conta(const QString &codigo, const QString &nome, const QString &tipo, const QString &classe)
    {
        const bool sintetico = codigo.length() == 3;
        con.Execute(QStringLiteral("INSERT INTO Plano(codigo,nome,tipo,classe,sintetico) VALUES('%1',\"%2\",\"%3\",\"%4\",%5)")
                        .arg(codigo, nome, tipo, classe, sintetico ? QStringLiteral("True") : QStringLiteral("False")));
    }

    // The chart most tests use: revenue 01., expenses 02., cash 03. and a
    // group 09. without members.
    void planoPadrao()
    {
        conta(QStringLiteral("01."), QStringLiteral("RECEITAS"), QStringLiteral("R"), QStringLiteral("O"));
        conta(QStringLiteral("01.001"), QStringLiteral("Taxa condominial"), QStringLiteral("R"), QStringLiteral("O"));
        conta(QStringLiteral("01.002"), QStringLiteral("Multas"), QStringLiteral("R"), QStringLiteral("E"));
        conta(QStringLiteral("02."), QStringLiteral("DESPESAS"), QStringLiteral("D"), QStringLiteral("O"));
        conta(QStringLiteral("02.001"), QStringLiteral("Água"), QStringLiteral("D"), QStringLiteral("O"));
        conta(QStringLiteral("02.002"), QStringLiteral("Energia"), QStringLiteral("D"), QStringLiteral("O"));
        conta(QStringLiteral("03."), QStringLiteral("DISPONÍVEL"), QStringLiteral("C"), QStringLiteral("C"));
        conta(QStringLiteral("03.001"), QStringLiteral("Banco Itaú"), QStringLiteral("C"), QStringLiteral("C"));
        conta(QStringLiteral("09."), QStringLiteral("SEM CONTAS"), QStringLiteral("C"), QStringLiteral("X"));
    }

    // A journal entry of 2008, as frmMov sends it.
    void lanca(const QString &data, const QString &deb, const QString &cre, const QString &valor,
               const QString &hist = QStringLiteral("Lançamento"), const QString &doc = QStringLiteral("1"))
    {
        con.Execute(QStringLiteral("INSERT INTO Mov08 (datalan,ctadeb,ctacre,nrdoc,histlan,vlrlan)  VALUES('") + data +
                    QStringLiteral("',\"") + deb + QStringLiteral("\",\"") + cre + QStringLiteral("\",\"") + doc +
                    QStringLiteral("\",\"") + hist + QStringLiteral("\",'") + valor + QStringLiteral("')"));
    }

    void poe(const QString &codigo, const QString &coluna, const QString &valor)
    {
        con.Execute(QStringLiteral("UPDATE Plano SET ") + coluna + QStringLiteral(" = '") + valor +
                    QStringLiteral("' WHERE codigo = '") + codigo + QStringLiteral("'"));
    }

    Money valor(const QString &tabela, const QString &codigo, const QString &coluna)
    {
        Recordset rs = con.Execute(QStringLiteral("SELECT ") + coluna + QStringLiteral(" FROM ") + tabela +
                                   QStringLiteral(" WHERE codigo = '") + codigo + QStringLiteral("'"));
        EXPECT_FALSE(rs.eof()) << tabela.toStdString() << " sem " << codigo.toStdString();
        return rs.eof() ? Money() : rs[coluna].toMoney();
    }
    Money plano(const QString &codigo, const QString &coluna) { return valor(QStringLiteral("Plano"), codigo, coluna); }
    // The columns asked for of one row, as text: "1000|300|1700".
    std::string linha(const char *tabela, const char *codigo, const char *colunas)
    {
        return leLinha(session.conAtiva, S("SELECT %1 FROM %2 WHERE codigo = '%3'").arg(S(colunas), S(tabela), S(codigo)))
            .toStdString();
    }

    long linhas(const QString &sql)
    {
        Recordset rs;
        rs.Open(sql, con, 1, 2);
        return rs.recordCount();
    }
};
