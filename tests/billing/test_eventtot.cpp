#include "billing/eventtot.h"
#include "condominio.h"

#include <gtest/gtest.h>

TEST(Eventtot, TotalsByEventWithoutDiscounts)
{
    Condominio c;
    c.con.Execute(QStringLiteral("INSERT INTO Eventtot(codigo,nome,tipo,valortot) VALUES('777','velho','H','1')"));
    c.con.Execute(QStringLiteral(
        "INSERT INTO Recibos (codigo,codap,situacao,item0,valor0,item1,valor1,item2,valor2,item3,valor3,item4,valor4) "
        "VALUES('000001','000001','A','001','300','030','-10','099','5',' ','2','010','0')"));
    c.con.Execute(QStringLiteral("INSERT INTO Recibos (codigo,codap,situacao,item0,valor0,item5,valor5) "
                                 "VALUES('000002','000002','A','001','250,5','001','1')"));
    c.con.Execute(QStringLiteral("INSERT INTO Recibos (codigo,codap,situacao,item0,valor0) "
                                 "VALUES('000003','000003','B','001','1000')"));

    EXPECT_EQ(encheEventtot(c.con, QStringLiteral("WHERE situacao = 'A'")), 2);
    auto linha = [&](const char *codigo, const char *col) {
        return c.valor(QStringLiteral("SELECT * FROM Eventtot WHERE codigo = '%1'").arg(QLatin1String(codigo)), col);
    };
    EXPECT_EQ(c.conta(QStringLiteral("SELECT Count(codigo) As I FROM Eventtot")), 3);
    EXPECT_EQ(linha("001", "nome"), QStringLiteral("Taxa Condominial"));
    EXPECT_EQ(c.dinheiro(QStringLiteral("SELECT * FROM Eventtot WHERE codigo = '001'"), "valortot"), reais(551.5));
    EXPECT_EQ(linha("099", "nome"), QStringLiteral("xxxxxxxxx"));
    EXPECT_EQ(linha("099", "tipo"), QStringLiteral("H"));
    EXPECT_EQ(c.dinheiro(QStringLiteral("SELECT * FROM Eventtot WHERE codigo = '000'"), "valortot"), reais(2));
    // The discount, the zero slot and the earlier contents are gone.
    EXPECT_EQ(linha("030", "nome"), QStringLiteral("<nenhum>"));
    EXPECT_EQ(linha("010", "nome"), QStringLiteral("<nenhum>"));
    EXPECT_EQ(linha("777", "nome"), QStringLiteral("<nenhum>"));
}
