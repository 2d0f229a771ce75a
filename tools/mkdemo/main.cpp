// mkdemo DIR [UNITS]: makes a complete program directory for trying the
// system: the executable, the databases, the report templates, Habitarium.ini,
// two users and one condominium, Con001.mdb, with UNITS units (48 when not
// given) and their owners, tenants, residents and vehicles, firms, a month of
// receipts, the bank 341 parameters and a year of journal entries, all in 2008.
// The same arguments always give the same data.
#include "demodata.h"

#include "core/conversions.h"
#include "core/datastore.h"
#include "core/installation.h"
#include "core/prompter.h"
#include "core/scramble.h"
#include "core/session.h"
#include "core/validators.h"

#include <QCoreApplication>
#include <QDate>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QSet>
#include <cstdio>

namespace {
// The demo's documented logins (docs/demo.md).
const QString kCliente = QStringLiteral("Administradora Horizonte Ltda.");
const QString kAdminLogin = QStringLiteral("admin");
const QString kAdminSenha = QStringLiteral("admin");
const QString kUsuario = QStringLiteral("Maria");
const QString kUsuarioSenha = QStringLiteral("demo");
const QString kCondominio = QStringLiteral("Condomínio Residencial Jardim das Palmeiras");
const QString kRua = QStringLiteral("Rua das Palmeiras");
const QString kNumero = QStringLiteral("1250");
const QString kBairro = QStringLiteral("Vila Mariana");
const QString kCidade = QStringLiteral("São Paulo");
const QString kCep = QStringLiteral("04117-040");

[[noreturn]] void falha(const QString &text)
{
    std::fprintf(stderr, "mkdemo: %s\n", text.toUtf8().constData());
    std::exit(1);
}

QString q(const QString &text) { return u'"' + text + u'"'; }     // free text
QString a(const QString &text) { return u'\'' + text + u'\''; }  // codes
QString b(bool v) { return v ? QStringLiteral("True") : QStringLiteral("False"); }
QString d(const QDate &date) { return u'#' + formatDate(date, QStringLiteral("mm/dd/yyyy")) + u'#'; }
QString m(Money v) { return a(VirgulaPonto(formatMoney(v, QStringLiteral("#######0.00")))); }
Money reais(double v) { return Money::fromDouble(v); }
QString z(int n, int width) { return ZeroEsq(QString::number(n), width); }

void copia(const QString &from, const QString &to)
{
    QFile::remove(to);
    if (!QFile::copy(from, to))
        falha(QStringLiteral("não foi possível copiar ") + from + QStringLiteral(" para ") + to);
    QFile::setPermissions(to, QFile::permissions(from) | QFile::WriteOwner | QFile::ReadOwner);
}

void removeBanco(const QString &path)
{
    for (const QString &suffix : {QString(), QStringLiteral("-wal"), QStringLiteral("-shm")})
        QFile::remove(path + suffix);
}

QString cpfValido(Sorteio &s)
{
    const QString cpf = sorteiaCpf(s);
    if (!ValidaCPF(cpf))
        falha(QStringLiteral("CPF gerado inválido: ") + cpf);
    return cpfMascarado(cpf);
}

QString cnpjValido(Sorteio &s)
{
    const QString cnpj = sorteiaCnpj(s);
    if (!ValidaCGC(cnpj))
        falha(QStringLiteral("CNPJ gerado inválido: ") + cnpj);
    return cnpjMascarado(cnpj);
}

struct Unidade {
    QString codigo;
    QString nome;
    QString situ;
    Money honor, honcb, honfr;
};

class Demo {
public:
    Demo(const QString &dir, int units) : dir_(dir), units_(units), s_(20080301) {}
    void sistema();
    void condominio();

private:
    void exec(const QString &sql) { cn_.Execute(sql); ++statements_; }
    void tabelas();
    void firmas();
    void unidades();
    void recibos();
    void parametros();
    void diario();

    QString dir_;
    int units_;
    Sorteio s_;
    Connection cn_;
    std::vector<Unidade> unidades_;
    int imobiliarias_ = 0;
    QString cnpjCondominio_;

public:
    long statements_ = 0;
};

void Demo::sistema()
{
    cnpjCondominio_ = cnpjValido(s_);
    cn_.Open(connectionString(dir_, QStringLiteral("Con000.mdb"), QString()));
    exec(QStringLiteral("INSERT INTO clientes(codigo,nome,endereco,numero,complemento,bairro,cidade,uf,cep,cgc,cpf,"
                        "ddd,fone1,fone2,fax,email,homepage,obs) VALUES( '1',")
         + q(kCondominio) + u',' + q(kRua) + u',' + q(kNumero) + QStringLiteral(",\" \",") + q(kBairro) + u','
         + q(kCidade) + QStringLiteral(",'SP','") + kCep + QStringLiteral("','") + cnpjCondominio_
         + QStringLiteral("',' ','11','5571-2040','5571-2041','5571-2049',\"sindico@jardimdaspalmeiras.com.br\","
                          "\" \",\"Síndica: Helena Duarte Sampaio\")"));
    const QString usuario = QStringLiteral(
        "INSERT INTO usuarios(codigo,nome,senha,impressora,dsenha,empat,bdcon,bdadi,bdexc,bdalt,cfcon,cfadi,cfexc,cfalt,cfbai)"
        " VALUES( '%1',\"%2\",\"%3\",'%4','%5',%6,%7)");
    exec(usuario.arg(QStringLiteral("1"), kUsuario, EmbaralhaSenha(kUsuarioSenha), QStringLiteral("L"),
                     QStringLiteral("02/01/2008"), QStringLiteral("1"),
                     QStringLiteral("True,True,True,True,True,True,True,True,True")));
    exec(usuario.arg(QStringLiteral("2"), QStringLiteral("Joao"), EmbaralhaSenha(QStringLiteral("joao")),
                     QStringLiteral("M"), QStringLiteral("15/01/2008"), QStringLiteral("1"),
                     QStringLiteral("True,True,False,False,True,False,False,False,False")));
    cn_.Close();
}

void Demo::condominio()
{
    cn_.Open(connectionString(dir_, QStringLiteral("Con001.mdb"), QString()));
    exec(QStringLiteral("INSERT INTO Pjuridica(codigo,nome,tipo) VALUES(0,'(Nenhum)',0)"));
    exec(QStringLiteral("INSERT INTO Pjuridica(codigo,nome,tipo) VALUES(0,'(Nenhum)',1)"));
    tabelas();
    firmas();
    unidades();
    recibos();
    parametros();
    diario();
    cn_.Close();
}

// Makes and their models; a vehicle stores the names, as the register's combos give them.
static const char *const kMarcas[][4] = {{"Volkswagen", "Gol", "Fox", "Polo"},     {"Fiat", "Uno", "Palio", "Siena"},
                                         {"Chevrolet", "Celta", "Corsa", "Astra"}, {"Ford", "Ka", "Fiesta", "Focus"},
                                         {"Honda", "Civic", "Fit", "CR-V"},        {"Toyota", "Corolla", "Hilux", "Fielder"}};

void Demo::tabelas()
{
    exec(QStringLiteral("INSERT INTO TpAp(codigo,descri,rateio) VALUES('01',\"Apartamento de 2 dormitórios\",'1')"));
    exec(QStringLiteral("INSERT INTO TpAp(codigo,descri,rateio) VALUES('02',\"Apartamento de 3 dormitórios\",'1.3')"));
    exec(QStringLiteral("INSERT INTO TpAp(codigo,descri,rateio) VALUES('03',\"Cobertura duplex\",'2')"));

    int mk = 0;
    for (const auto &marca : kMarcas) {
        ++mk;
        exec(QStringLiteral("INSERT INTO Tpveiculos(codgrupo,grupo,descri) VALUES('") + z(mk, 2) + QStringLiteral("',True,")
             + q(QString::fromUtf8(marca[0])) + u')');
        for (int md = 1; md <= 3; ++md)
            exec(QStringLiteral("INSERT INTO Tpveiculos(codgrupo,grupo,descri) VALUES('") + z(mk, 2) + z(md, 2)
                 + QStringLiteral("',False,") + q(QString::fromUtf8(marca[md])) + u')');
    }

    exec(QStringLiteral("INSERT INTO Contas(codigo,nbanco,nagencia,codbco,codagc,nrconta) VALUES(1,"
                        "\"Banco Itaú S.A.\",\"Agência Vila Mariana\",'341','0742','04582-6')"));
    exec(QStringLiteral("INSERT INTO Contas(codigo,nbanco,nagencia,codbco,codagc,nrconta) VALUES(2,"
                        "\"Banco Itaú S.A. - Poupança\",\"Agência Vila Mariana\",'341','0742','31877-0')"));

    const char *const trabalhadores[][2] = {{"Zelador", "Manutenção geral"}, {"Porteiro", "Portaria diurna"},
                                            {"Porteiro", "Portaria noturna"}, {"Faxineira", "Limpeza das áreas comuns"},
                                            {"Jardineiro", "Jardins e piscina"}};
    int codigo = 0;
    for (const auto &t : trabalhadores) {
        const Pessoa p = sorteiaPessoa(s_);
        ++codigo;
        exec(QStringLiteral("INSERT INTO Mobra(codigo,nome,rg,cpf,ctps,serctps,ufctps,endereco,numero,complemento,bairro,"
                            "cidade,uf,cep,qualif1,qualif2,qualif3,observ,tipo,nascto,codemap) VALUES(")
             + QString::number(codigo) + u',' + q(p.nome) + u',' + a(p.rg) + u',' + a(cpfValido(s_)) + u','
             + a(QString::number(s_.between(10000, 99999))) + u',' + a(z(s_.between(1, 999), 3)) + QStringLiteral(",'SP',")
             + q(sorteiaEndereco(s_).rua) + u',' + q(p.numero) + QStringLiteral(",\" \",") + q(kBairro) + u','
             + q(kCidade) + QStringLiteral(",'SP','") + kCep + QStringLiteral("',") + q(QString::fromUtf8(t[0])) + u','
             + q(QString::fromUtf8(t[1])) + QStringLiteral(",\" \",\" \",'0',")
             + d(QDate(1955 + s_.between(0, 30), s_.between(1, 12), s_.between(1, 28))) + QStringLiteral(",0)"));
    }
}

void Demo::firmas()
{
    struct Firma {
        const char *nome;
        int tipo;
        const char *setor;
    };
    const Firma firmas[] = {
        {"Lopes Imóveis Vila Mariana Ltda.", 0, "Locação"},
        {"Imobiliária Paulistana S/C Ltda.", 0, "Administração"},
        {"Coelho da Fonseca Empreendimentos", 0, "Vendas"},
        {"Caixa Econômica Federal - Habitação", 1, "Crédito Imobiliário"},
        {"Banco Itaú - Crédito Imobiliário", 1, "Financiamento"},
        {"Elevadores Atlas Schindler S.A.", 2, "Manutenção"},
        {"Porto Seguro Cia. de Seguros Gerais", 3, "Sinistros"},
        {"Limpadora Brilho Total Ltda.", 2, "Comercial"},
        {"Jardins & Cia. Paisagismo", 2, "Atendimento"},
    };
    // The system finds a firm by its code alone, whatever its type: one code a firm.
    int codigo = 0;
    for (const Firma &f : firmas) {
        ++codigo;
        if (f.tipo == 0)
            ++imobiliarias_;
        const Endereco e = sorteiaEndereco(s_);
        const Pessoa contato = sorteiaPessoa(s_);
        exec(QStringLiteral("INSERT INTO Pjuridica(codigo,nome,endereco,numero,complemento,bairro,cidade,uf,cep,cnpj,cpf,"
                            "inscest,ddd,fone0,fone1,fone2,fax,email,homepage,obs,tipo,contato0,setor0,nascto0) VALUES(")
             + QString::number(codigo) + u',' + q(QString::fromUtf8(f.nome)) + u',' + q(e.rua) + u','
             + q(QString::number(s_.between(20, 3000))) + QStringLiteral(",\" \",") + q(e.bairro) + u',' + q(e.cidade) + u','
             + a(e.uf) + u',' + a(e.cep) + u',' + a(cnpjValido(s_)) + QStringLiteral(",' ',")
             + a(QStringLiteral("%1.%2.%3.%4").arg(s_.between(100, 999)).arg(s_.between(100, 999)).arg(s_.between(100, 999)).arg(s_.between(100, 999)))
             + u',' + a(e.ddd) + u',' + a(sorteiaTelefone(s_)) + u',' + a(sorteiaTelefone(s_)) + QStringLiteral(",' ',")
             + a(sorteiaTelefone(s_)) + u',' + q(contato.email) + QStringLiteral(",\" \",\" \",'") + QString::number(f.tipo)
             + QStringLiteral("',") + q(contato.nome) + u',' + q(QString::fromUtf8(f.setor)) + u','
             + d(QDate(1960 + s_.between(0, 25), s_.between(1, 12), s_.between(1, 28))) + u')');
    }
}

void Demo::unidades()
{
    // Small condominiums: two blocks of four units a floor; large ones: blocks
    // of twenty floors with eight units each. Code: block, floor, unit.
    const bool grande = units_ > 200;
    const int porAndar = grande ? 8 : 4;
    const int andares = grande ? 20 : (units_ + 2 * porAndar - 1) / (2 * porAndar);
    const int blocos = (units_ + andares * porAndar - 1) / (andares * porAndar);
    if (blocos > 99)
        falha(QStringLiteral("no máximo 15840 unidades"));
    for (int bl = 1; bl <= blocos; ++bl) {
        const QString letra = bl <= 26 ? QString(QChar(u'A' + bl - 1)) : QString::number(bl);
        exec(QStringLiteral("INSERT INTO Grupos(codgrupo,Grupo,Descri) VALUES('") + z(bl, 2) + QStringLiteral("',True,'Bloco ")
             + letra + QStringLiteral("')"));
    }

    const char *const cores[] = {"Prata", "Preto", "Branco", "Vermelho", "Azul", "Cinza", "Verde"};
    // The bond is stored as its digit: 3 Cônjuge, 4 Filho(a), 5 Pai/Mãe, 7 Outros.
    const char *const vinculos[] = {"3", "4", "4", "5", "7"};
    QSet<QString> placas;
    int n = 0;
    for (int bl = 1; bl <= blocos && n < units_; ++bl) {
        for (int an = 1; an <= andares && n < units_; ++an) {
            for (int un = 1; un <= porAndar && n < units_; ++un) {
                ++n;
                Unidade u;
                u.codigo = z(bl, 2) + z(an, 2) + z(un, 2);
                const bool cobertura = an == andares && un <= 2;
                const QString tapto = cobertura ? QStringLiteral("03") : (un % 2 ? QStringLiteral("01") : QStringLiteral("02"));
                const int r = s_.between(1, 100);
                const QString tuso = r <= 65 ? QStringLiteral("1") : r <= 90 ? QStringLiteral("2") : r <= 95 ? QStringLiteral("3") : QStringLiteral("4");
                u.situ = s_.chance(97) ? QStringLiteral("A") : QStringLiteral("I");
                const Pessoa dono = sorteiaPessoa(s_);
                u.nome = dono.nome;
                const bool cabina = s_.chance(30);
                u.honor = cobertura ? reais(910.00) : tapto == QLatin1String("01") ? reais(452.80) : reais(588.64);
                u.honcb = cabina ? reais(35.00) : Money();
                u.honfr = Money::fromDouble(Arredonda(u.honor * 0.1, 2));
                const QString complemento = QStringLiteral("Apto %1%2 - Bloco %3").arg(an).arg(un, 2, 10, QLatin1Char('0')).arg(QChar(u'A' + (bl - 1) % 26));
                const bool moraNoPredio = tuso == QLatin1String("1");
                const Endereco e = moraNoPredio ? Endereco{kRua, kBairro, kCidade, QStringLiteral("SP"), kCep, QStringLiteral("11")} : dono.endereco;
                const QString numero = moraNoPredio ? kNumero : dono.numero;
                const QString complementoDono = moraNoPredio ? complemento : (dono.complemento.isEmpty() ? QStringLiteral(" ") : dono.complemento);
                const bool alugado = tuso == QLatin1String("2");
                const Pessoa inq = alugado ? sorteiaPessoa(s_) : Pessoa{};
                const QString conjuge = s_.chance(60) ? sorteiaPessoa(s_).nome : QStringLiteral(" ");
                const int imob = alugado && imobiliarias_ > 0 ? 2 + s_.between(1, imobiliarias_) : 1;  // codauto; 1 = (Nenhum)
                QString sql = QStringLiteral(
                    "INSERT INTO Aptos(codigo,nome,codinterno,tapto,tuso,situ,nrcontpm,seguropro,quitado,cabina,aposentado,"
                    "crateio,codimob,codfin,conjugepro,enderecopro,numeropro,complementopro,bairropro,cidadepro,ufpro,ceppro,"
                    "cpfpro,rgpro,cnpjpro,emailpro,inquilino,enderecoinq,numeroinq,complementoinq,bairroinq,cidadeinq,ufinq,"
                    "cepinq,cpfinq,rginq,cnpjinq,emailinq,dddap,foneap,dddpro,fonepro,dddinq,foneinq,dddcoml,fonecoml,"
                    "tipcob,nemis,demis,nrecibo,tipbolbco,honor,honcb,honfr,refer,diavcto,observ) VALUES('");
                sql += u.codigo + QStringLiteral("',") + q(u.nome) + u',' + a(QStringLiteral("%1-%2%3").arg(QChar(u'A' + (bl - 1) % 26)).arg(an).arg(un, 2, 10, QLatin1Char('0')))
                    + u',' + a(tapto) + u',' + a(tuso) + u',' + a(u.situ) + u','
                    + a(QStringLiteral("%1.%2.%3-%4").arg(s_.between(100, 999)).arg(s_.between(100, 999)).arg(s_.between(1000, 9999)).arg(s_.between(0, 9)))
                    + u',' + b(s_.chance(40)) + u',' + b(s_.chance(70)) + u',' + b(cabina) + u',' + b(s_.chance(15)) + u','
                    + a(cobertura ? QStringLiteral("2") : tapto == QLatin1String("01") ? QStringLiteral("1") : QStringLiteral("1.3"))
                    + u',' + QString::number(imob) + QStringLiteral(",1,") + q(conjuge) + u',' + q(e.rua) + u',' + q(numero) + u','
                    + q(complementoDono) + u',' + q(e.bairro) + u',' + q(e.cidade) + u',' + a(e.uf) + u',' + a(e.cep) + u','
                    + a(cpfValido(s_)) + u',' + a(dono.rg) + QStringLiteral(",' ',") + q(dono.email) + u',';
                if (alugado)
                    sql += q(inq.nome) + u',' + q(kRua) + u',' + q(kNumero) + u',' + q(complemento) + u',' + q(kBairro) + u','
                        + q(kCidade) + QStringLiteral(",'SP',") + a(kCep) + u',' + a(cpfValido(s_)) + u',' + a(inq.rg)
                        + QStringLiteral(",' ',") + q(inq.email) + u',';
                else
                    sql += QStringLiteral("\" \",\" \",\" \",\" \",\" \",\" \",' ',' ',' ',' ',' ',\" \",");
                sql += QStringLiteral("'11',") + a(sorteiaTelefone(s_)) + u',' + a(e.ddd) + u',' + a(dono.fone) + u','
                    + (alugado ? QStringLiteral("'11',") + a(inq.fone) : QStringLiteral("' ',' '")) + u','
                    + (s_.chance(30) ? QStringLiteral("'11',") + a(sorteiaTelefone(s_)) : QStringLiteral("' ',' '"))
                    + QStringLiteral(",'1','0',#01/01/2003#,'000000','1',") + m(u.honor) + u',' + m(u.honcb) + u','
                    + m(u.honfr) + QStringLiteral(",'0','10',")
                    + q(s_.chance(10) ? QStringLiteral("Vaga de garagem extra alugada ao condomínio") : QStringLiteral(" "))
                    + u')';
                exec(sql);
                unidades_.push_back(u);

                // Residents: the household of whoever lives there.
                if (tuso != QLatin1String("4")) {
                    const Pessoa &titular = alugado ? inq : dono;
                    exec(QStringLiteral("INSERT INTO Moradores(codap,nome,nascto,vinculo) VALUES('") + u.codigo
                         + QStringLiteral("',") + q(titular.nome) + u','
                         + d(QDate(1940 + s_.between(0, 45), s_.between(1, 12), s_.between(1, 28))) + u','
                         + a(alugado ? QStringLiteral("2") : QStringLiteral("1")) + u')');
                    for (int k = s_.between(0, 3); k > 0; --k) {
                        const QString nascto = s_.chance(85)
                            ? d(QDate(1940 + s_.between(0, 67), s_.between(1, 12), s_.between(1, 28)))
                            : QStringLiteral("Null");
                        exec(QStringLiteral("INSERT INTO Moradores(codap,nome,nascto,vinculo) VALUES('") + u.codigo
                             + QStringLiteral("',") + q(sorteiaPessoa(s_).nome) + u',' + nascto + u','
                             + a(QString::fromUtf8(s_.pick(vinculos))) + u')');
                    }
                    for (int k = s_.between(0, 100) < 55 ? 1 : (s_.chance(20) ? 2 : 0); k > 0; --k) {
                        QString placa;
                        do {
                            placa = QStringLiteral("%1%2%3-%4")
                                        .arg(QChar(u'A' + s_.between(0, 25)))
                                        .arg(QChar(u'A' + s_.between(0, 25)))
                                        .arg(QChar(u'A' + s_.between(0, 25)))
                                        .arg(s_.between(1000, 9999));
                        } while (placas.contains(placa));
                        placas.insert(placa);
                        const int marca = s_.between(1, 6);
                        const int modelo = s_.between(1, 3);
                        exec(QStringLiteral("INSERT INTO Veiculos(chapa,apto,proprietario,cor,marca,modelo,obs,ano) VALUES('")
                             + placa + QStringLiteral("','") + u.codigo + QStringLiteral("',") + q(titular.nome) + u','
                             + q(QString::fromUtf8(s_.pick(cores))) + u',' + q(QString::fromUtf8(kMarcas[marca - 1][0])) + u','
                             + q(QString::fromUtf8(kMarcas[marca - 1][modelo])) + QStringLiteral(",\" \",'")
                             + QString::number(s_.between(1996, 2008)) + QStringLiteral("')"));
                    }
                }
            }
        }
    }
}

void Demo::recibos()
{
    // March 2008, emitted on 25/02/2008 and due on the 10th; most are paid.
    const QDate emissao(2008, 2, 25), vencto(2008, 3, 10);
    int numero = 0;
    for (const Unidade &u : unidades_) {
        if (u.situ != QLatin1String("A"))
            continue;
        const QString codigo = z(++numero, 6);
        const bool pago = s_.chance(72);
        QString itens = QStringLiteral("item0,comp0,refer0,valor0,item1,comp1,refer1,valor1");
        QString valores = QStringLiteral("'001',\"03/2008\",'0',") + m(u.honor) + QStringLiteral(",'003',\"03/2008\",'0',")
            + m(u.honfr);
        if (!u.honcb.isZero()) {
            itens += QStringLiteral(",item2,comp2,refer2,valor2");
            valores += QStringLiteral(",'002',\"03/2008\",'0',") + m(u.honcb);
        }
        const Money vtoth = u.honor + u.honcb;
        const Money vtotal = vtoth + u.honfr;
        exec(QStringLiteral("INSERT INTO Recibos(codigo,codap,nemis,demis,dvencto,drecbto,tipcob,tipbolbco,situacao,nrbco,")
             + itens + QStringLiteral(",vtoth,vtotr,vtott,vtotd,vtotal,obs1,obs2,Usubx,valido) VALUES('") + codigo
             + QStringLiteral("','") + u.codigo + QStringLiteral("',\"200803\",") + d(emissao) + u',' + d(vencto) + u','
             + (pago ? d(QDate(2008, 3, s_.between(3, 14))) : QStringLiteral("Null")) + QStringLiteral(",'1','1',")
             + a(pago ? QStringLiteral("B") : QStringLiteral("A")) + QStringLiteral(",'',") + valores + u',' + m(vtoth)
             + u',' + m(u.honfr) + QStringLiteral(",'0','0',") + m(vtotal)
             + QStringLiteral(",\"Pague em dia e evite multa e juros.\",\" \",")
             + (pago ? q(kUsuario) + u',' + QString::number(s_.between(100000, 999999)) : QStringLiteral("\"\",0")) + u')');
        exec(QStringLiteral("UPDATE Aptos SET nemis = '200803', demis = ") + d(emissao) + QStringLiteral(", nrecibo = '")
             + codigo + QStringLiteral("' WHERE codigo = '") + u.codigo + u'\'');
    }
    exec(QStringLiteral("UPDATE Parametros Set fnreci = '") + z(numero, 6) + QStringLiteral("' Where codigo = 1"));
}

void Demo::parametros()
{
    exec(QStringLiteral("UPDATE Parametros Set fnemis = '200804',fdemis = #03/25/2008#,fmvcto = #04/01/2008#,"
                        "fordem = 'N',fsempr = 'A',fpimpr = '0',ftitu1 = \"1a. Via - Condômino\",ftitu2 = \"2a. Via - Condomínio\","
                        "fvref1 = '0',fvref2 = '0',fvref3 = '0',fretit = False,fspool = False,fautom = True,fhonor = True,"
                        "fpdigi = False,fevnt1 = '',fevnt2 = '',fevnt3 = '',fevnt4 = '',fvlev1 = '0',fvlev2 = '0',"
                        "fvlev3 = '0',fvlev4 = '0',fcpev1 = '',fcpev2 = '',fcpev3 = '',fcpev4 = '',fEvTc = '001',"
                        "fCpTc = '04/2008',fEvCb = '002',fCpCb = '04/2008',fEvFr = '003',fCpfr = '04/2008',"
                        "fmsg = \"Assembleia geral ordinária em 26/04/2008, às 19h30, no salão de festas.\" Where codigo = 1"));
    exec(QStringLiteral("UPDATE Parametros Set RitauAg = '0742',RBanco = '341',RitauCc = '045826',RitauCd = ")
         + q(kCondominio.toUpper().left(30)) + QStringLiteral(",RitauCgc = '") + cnpjCondominio_
         + QStringLiteral("',RConvenio = '',RitauCpf = '',RitauCart = '175',RitauNn = '0',RitauEsp = '05',Ritaui1 = '09',"
                          "Ritaui2 = '00',Instrubco1 = 'Após o vencimento cobrar multa de 2%',"
                          "Instrubco2 = 'Juros de mora de 0,033% ao dia',Instrubco3 = 'Não receber após 30 dias do vencimento',"
                          "Instrubco4 = 'Em caso de dúvida ligue (11) 5571-2040',Instrubco5 = '',Instrubco6 = '' Where codigo = 1"));
    exec(QStringLiteral("UPDATE Parametros Set ano_mov = #01/01/2008#, cartctit = \"Aviso de Débito\", "
                        "cartclocal = \"São Paulo\" Where codigo = 1"));
}

void Demo::diario()
{
    Money taxas, fundo;
    for (const Unidade &u : unidades_) {
        if (u.situ == QLatin1String("A")) {
            taxas += u.honor + u.honcb;
            fundo += u.honfr;
        }
    }
    const double escala = units_ / 48.0;
    struct Lancamento {
        const char *debito, *credito, *historico;
        double valor;  // for 48 units; 0: the month's fees
        int dia;
    };
    const Lancamento mensais[] = {
        {"07.002", "01.001", "Recebimento de taxas condominiais", 0, 12},
        {"07.004", "01.002", "Recebimento do fundo de reserva", -1, 12},
        {"07.002", "01.003", "Multas e juros recebidos", 310.0, 20},
        {"02.001", "07.002", "Folha de pagamento", 7850.0, 5},
        {"02.002", "07.002", "INSS e FGTS da folha", 2620.0, 20},
        {"02.004", "07.002", "Vale-transporte dos funcionários", 640.0, 1},
        {"03.001", "07.002", "Honorários da administradora", 1150.0, 10},
        {"03.003", "07.002", "Tarifas bancárias", 86.4, 28},
        {"04.001", "07.002", "Conta de energia elétrica - Eletropaulo", 2310.0, 15},
        {"04.002", "07.002", "Conta de água e esgoto - Sabesp", 3180.0, 18},
        {"04.004", "07.002", "Telefone da portaria", 145.0, 22},
        {"05.001", "07.002", "Manutenção mensal dos elevadores", 1280.0, 8},
        {"05.002", "07.002", "Material de limpeza", 420.0, 14},
        {"05.004", "07.002", "Jardinagem e piscina", 560.0, 25},
        {"07.003", "01.004", "Rendimento da aplicação financeira", 180.0, 28},
    };
    int doc = 1000;
    for (int mes = 1; mes <= 12; ++mes) {
        for (const Lancamento &l : mensais) {
            Money valor;
            if (l.valor == 0)
                valor = Money::fromDouble(Arredonda(taxas * (0.88 + s_.between(0, 8) / 100.0), 2));
            else if (l.valor < 0)
                valor = Money::fromDouble(Arredonda(fundo * 0.9, 2));
            else
                valor = Money::fromDouble(Arredonda(Money::fromDouble(l.valor * escala) * (0.92 + s_.between(0, 16) / 100.0), 2));
            const QDate data(2008, mes, std::min(l.dia, QDate(2008, mes, 1).daysInMonth()));
            exec(QStringLiteral("INSERT INTO Mov08(datalan,ctadeb,ctacre,nrdoc,histlan,vlrlan) VALUES(") + d(data) + u','
                 + a(QString::fromLatin1(l.debito)) + u',' + a(QString::fromLatin1(l.credito)) + u',' + a(QString::number(++doc))
                 + u',' + q(QString::fromUtf8(l.historico) + u' ' + formatDate(data, QStringLiteral("mm/yyyy"))) + u','
                 + m(valor) + u')');
        }
    }
    const Lancamento eventuais[] = {
        {"03.004", "07.002", "Seguro anual do edifício - Porto Seguro", 4800.0, 14},
        {"02.003", "07.002", "13º salário - 1ª parcela", 3900.0, 28},
        {"02.003", "07.002", "13º salário - 2ª parcela", 3900.0, 19},
        {"05.003", "07.002", "Reparo no portão da garagem", 1350.0, 7},
        {"06.002", "07.002", "Pintura da fachada - 1ª medição", 18500.0, 16},
        {"07.002", "01.005", "Taxa extra para a pintura da fachada", 19200.0, 12},
    };
    const int meses[] = {3, 11, 12, 6, 9, 9};
    for (size_t k = 0; k < std::size(eventuais); ++k) {
        const Lancamento &l = eventuais[k];
        const QDate data(2008, meses[k], l.dia);
        exec(QStringLiteral("INSERT INTO Mov08(datalan,ctadeb,ctacre,nrdoc,histlan,vlrlan) VALUES(") + d(data) + u','
             + a(QString::fromLatin1(l.debito)) + u',' + a(QString::fromLatin1(l.credito)) + u',' + a(QString::number(++doc))
             + u',' + q(QString::fromUtf8(l.historico)) + u',' + m(Money::fromDouble(Arredonda(Money::fromDouble(l.valor * escala), 2)))
             + u')');
    }
}
}

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    const QStringList args = app.arguments();
    if (args.size() < 2 || args.size() > 3) {
        std::fprintf(stderr, "uso: mkdemo DIR [UNIDADES]\n");
        return 2;
    }
    int units = 48;
    if (args.size() == 3) {
        bool ok = false;
        units = args[2].toInt(&ok);
        if (!ok || units < 1 || units > 15840) {
            std::fprintf(stderr, "mkdemo: UNIDADES deve ser um número de 1 a 15840\n");
            return 2;
        }
    }
    HeadlessPrompter headless;
    setPrompter(&headless);
    QElapsedTimer timer;
    timer.start();

    const QString bin = QCoreApplication::applicationDirPath() + u'/';
    if (!QDir().mkpath(args[1]))
        falha(QStringLiteral("não foi possível criar o diretório ") + args[1]);
    const QString dir = QDir(args[1]).absolutePath() + u'/';

    for (const QString &old : QDir(dir).entryList({QStringLiteral("Con*.mdb"), QStringLiteral("Ajustec.mdb")}))
        removeBanco(dir + old);
    copia(bin + QStringLiteral("habitarium"), dir + QStringLiteral("habitarium"));
    copia(bin + QStringLiteral("Matrix.mdb"), dir + QStringLiteral("Matrix.mdb"));
    copia(bin + QStringLiteral("Ajustec.mdb"), dir + QStringLiteral("Con000.mdb"));  // the first installation, done
    for (const QString &rpt : QDir(bin).entryList({QStringLiteral("*.rpt")}, QDir::Files))
        copia(bin + rpt, dir + rpt);
    copia(dir + QStringLiteral("Matrix.mdb"), dir + QStringLiteral("Con001.mdb"));
    if (!writeInstallationSettings(dir, {kCliente, kAdminLogin, EmbaralhaAdm(kAdminSenha)}))
        falha(QStringLiteral("não foi possível gravar ") + dir + kSettingsFile);

    try {
        Demo demo(dir, units);
        demo.sistema();
        demo.condominio();
        std::printf("mkdemo: %s com %d unidades (%ld comandos em %.1f s)\n", dir.toUtf8().constData(), units,
                    demo.statements_, timer.elapsed() / 1000.0);
        std::printf("mkdemo: entre como \"%s\" / senha \"%s\" (administrador: \"%s\" / \"%s\")\n",
                    kUsuario.toUtf8().constData(), kUsuarioSenha.toUtf8().constData(), kAdminLogin.toUtf8().constData(),
                    kAdminSenha.toUtf8().constData());
    } catch (const DatabaseError &e) {
        falha(e.message() + QStringLiteral("\n") + e.statement());
    } catch (const std::exception &e) {
        falha(QString::fromUtf8(e.what()));
    }
    setPrompter(nullptr);
    return 0;
}
