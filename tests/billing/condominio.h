#pragma once
// A condominium file for the billing tests: a temporary program directory
// with Con001.mdb active, a small set of events of every type, and helpers
// to add apartments and users.
#include "billing/parametros.h"
#include "core/datastore.h"
#include "core/session.h"
#include "support/fixtures.h"

#include <QString>
#include <memory>

class Condominio {
public:
    Condominio()
    {
        dir.makeCondominium(1);
        dir.useInSession(1);
        con.Open(session.conAtiva);
        con.Execute(QStringLiteral("DELETE FROM Eventos"));
        evento("001", "Taxa Condominial", 'H');
        evento("002", "Taxa de Cabina", 'H');
        evento("003", "Fundo de Reserva", 'R');
        evento("010", "Consumo de Água", 'T');
        evento("020", "Multa", 'R');
        evento("030", "Desconto", 'D');
        evento("040", "Outro", 'X');
    }
    ~Condominio()
    {
        if (con.State() == 1)
            con.Close();
    }

    void evento(const char *codigo, const char *nome, char tipo)
    {
        con.Execute(QStringLiteral("INSERT INTO Eventos(codigo,nome,tipo,ir,refer,valor) VALUES('%1',\"%2\",'%3',False,False,'0')")
                        .arg(QLatin1String(codigo), QString::fromUtf8(nome), QChar::fromLatin1(tipo)));
    }

    // An apartment; diavcto < 0 leaves the due day Null.
    void apto(int codigo, const QString &nome, double honor, double honcb = 0, double honfr = 0, int diavcto = 10,
              const QString &situ = QStringLiteral("A"), const QString &tipcob = QStringLiteral("1"),
              const QString &tapto = QStringLiteral("01"), bool cabina = false, bool aposentado = false)
    {
        con.Execute(QStringLiteral("INSERT INTO Aptos (codigo,nome,situ,tipcob,tipbolbco,honor,honcb,honfr,refer,"
                                   "diavcto,nemis,demis,nrecibo,tapto,cabina,aposentado) VALUES('%1',\"%2\",'%3','%4','',"
                                   "'%5','%6','%7','0',%8,'0','01/01/2003','000000','%9',%10,%11)")
                        .arg(QStringLiteral("%1").arg(codigo, 6, 10, QLatin1Char('0')), nome, situ, tipcob)
                        .arg(honor)
                        .arg(honcb)
                        .arg(honfr)
                        .arg(diavcto < 0 ? QStringLiteral("Null") : QString::number(diavcto), tapto,
                             cabina ? QStringLiteral("True") : QStringLiteral("False"),
                             aposentado ? QStringLiteral("True") : QStringLiteral("False")));
    }

    // A user of the system file with the settle, alter and delete rights given.
    void usuario(int codigo, const QString &nome, bool cfbai, bool cfalt, bool cfexc, bool cfadi = true)
    {
        auto b = [](bool v) { return v ? QStringLiteral("True") : QStringLiteral("False"); };
        dir.execSistema(QStringLiteral("INSERT INTO usuarios(codigo,nome,senha,impressora,dsenha,empat,bdcon,bdadi,"
                                       "bdexc,bdalt,cfcon,cfadi,cfexc,cfalt,cfbai) VALUES('%1',\"%2\",\"x\",'M',"
                                       "'01/01/2003','1',True,True,True,True,True,%3,%4,%5,%6)")
                            .arg(QString::number(codigo), nome, b(cfadi), b(cfexc), b(cfalt), b(cfbai)));
    }

    // Parameters of a month: emission "0203" of 05/02/2003, due in 02/2003,
    // the three fee events 001, 002, 003 and no fixed event.
    ParametrosEmissao mes(bool fhonor = true, const QString &fnreci = QStringLiteral("000100")) const
    {
        ParametrosEmissao p;
        p.fnemis = QStringLiteral("0203");
        p.fdemis = QStringLiteral("05/02/2003");
        p.fmvcto = QStringLiteral("02/2003");
        p.fnreci = fnreci;
        p.fordem = QLatin1Char('N');
        p.fsempr = QStringLiteral("T");
        p.fautom = true;
        p.fhonor = fhonor;
        p.fEvTc = QStringLiteral("001");
        p.fCpTc = QStringLiteral("Fev/2003 ");
        p.fEvCb = QStringLiteral("002");
        p.fEvFr = QStringLiteral("003");
        return p;
    }

    // The first row of a read, its columns as "a|b|c" (leLinha).
    QString linha(const QString &sql) const { return leLinha(session.conAtiva, sql); }
    QString linhas(const QString &sql) const { return leLinhas(session.conAtiva, sql); }
    // One value of one row, as text.
    QString valor(const QString &sql, const char *coluna)
    {
        Recordset rs = con.Execute(sql);
        return rs.eof() ? QStringLiteral("<nenhum>") : rs[QLatin1String(coluna)].text();
    }
    Money dinheiro(const QString &sql, const char *coluna)
    {
        Recordset rs = con.Execute(sql);
        return rs.eof() ? Money() : rs[QLatin1String(coluna)].toMoney();
    }
    long conta(const QString &sql)
    {
        Recordset rs = con.Execute(sql);
        return long(rs[QStringLiteral("I")].toInt());
    }

    TempProgramDir dir;
    Connection con;
};

inline Money reais(double v) { return Money::fromDouble(v); }

// Readable values in test failures.
inline void PrintTo(const QString &s, std::ostream *os) { *os << '"' << s.toStdString() << '"'; }
inline void PrintTo(const Money &m, std::ostream *os) { *os << m.units() / 10000.0; }
