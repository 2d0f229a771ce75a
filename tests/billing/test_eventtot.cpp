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
    // The discount, the zero slot and the earlier contents are gone.
    EXPECT_EQ(c.linhas(QStringLiteral("SELECT codigo,valortot FROM Eventtot ORDER BY codigo")),
              QStringLiteral("000|2\n001|551,5\n099|5\n"));
    EXPECT_EQ(c.linhas(QStringLiteral("SELECT nome,tipo FROM Eventtot WHERE codigo IN ('001','099') ORDER BY codigo")),
              QStringLiteral("Taxa Condominial|H\nxxxxxxxxx|H\n"));
}
