#include "reporting/listas.h"

#include "core/conversions.h"

namespace {
QString s(const char *t) { return QString::fromUtf8(t); }

QString campo(const Recordset &rs, const char *coluna) { return rs[QString::fromLatin1(coluna)].text(); }

RelatorioCadastro montaRelatorio(const char *titulo, const char *modelo, const char *base,
                                 std::initializer_list<std::pair<const char *, const char *>> ordens,
                                 QStringList colunas, RowFiller linha = {}, const char *semLinhas = "")
{
    RelatorioCadastro r{s(titulo), s(modelo), {}, std::move(colunas), std::move(linha), s(semLinhas)};
    for (const auto &[opcao, fim] : ordens)
        r.ordens.append({s(opcao), s(base) + s(fim)});
    return r;
}
}  // namespace

QString textoVinculo(const QString &digito)
{
    static const QStringList textos{s("Proprietário(a)"), s("Inquilino(a)"), s("Cônjuge"), s("Filho(a)"),
                                    s("Pai/Mãe"),         s("Neto(a)"),      s("Outros")};
    const int i = digito.trimmed().toInt() - 1;
    return i >= 0 && i < textos.size() ? textos[i] : digito;
}

QString textoUso(const QString &digito)
{
    static const QStringList textos{s("Uso Próprio"), s("Aluguel"), s("Empréstimo"), s("Vago")};
    const int i = digito.trimmed().toInt() - 1;
    return i >= 0 && i < textos.size() ? textos[i] : digito;
}

QString juntaEndereco(const QStringList &partes)
{
    QStringList cheias;
    for (const QString &p : partes)
        if (!p.trimmed().isEmpty())
            cheias << p.trimmed();
    return cheias.join(QStringLiteral(", "));
}

QString juntaFone(const QString &ddd, const QString &fone)
{
    if (fone.trimmed().isEmpty())
        return {};
    if (ddd.trimmed().isEmpty())
        return fone.trimmed();
    return QStringLiteral("(") + ddd.trimmed() + QStringLiteral(") ") + fone.trimmed();
}

// ---- Register reports -------------------------------------------------------

const RelatorioCadastro &relacaoAptos()
{
    static const RelatorioCadastro r = montaRelatorio(
        "Relação de Aptos", "RAptos.rpt", "SELECT codigo,nome,conjugepro FROM Aptos ORDER BY ",
        {{"optApto", "codigo"}, {"optPro", "nome"}, {"optCon", "conjugepro"}},
        {s("Codigo"), s("Nome"), s("Conjugepro")});
    return r;
}

const RelatorioCadastro &relacaoEnderecos()
{
    static const RelatorioCadastro r = montaRelatorio(
        "Relação de Endereços", "RelEnd.rpt",
        "SELECT codigo,nome,enderecopro,numeropro,complementopro,cidadepro,ufpro,ceppro,dddpro,fonepro,dddinq,"
        "foneinq,dddap,foneap FROM Aptos ORDER BY ",
        {{"optApto", "codigo"}, {"optPro", "nome"}, {"optEnd", "enderecopro"}},
        {s("Codigo"), s("Nome"), s("Enderecopro"), s("Cidadepro"), s("Ufpro"), s("Ceppro"), s("Fonepro"),
         s("Foneinq"), s("Foneap")},
        [](const Recordset &rs) {
            return QStringList{campo(rs, "codigo"),
                               campo(rs, "nome"),
                               juntaEndereco({campo(rs, "enderecopro"), campo(rs, "numeropro"),
                                              campo(rs, "complementopro")}),
                               campo(rs, "cidadepro"),
                               campo(rs, "ufpro"),
                               campo(rs, "ceppro"),
                               juntaFone(campo(rs, "dddpro"), campo(rs, "fonepro")),
                               juntaFone(campo(rs, "dddinq"), campo(rs, "foneinq")),
                               juntaFone(campo(rs, "dddap"), campo(rs, "foneap"))};
        });
    return r;
}

const RelatorioCadastro &listagemTelefonica()
{
    static const RelatorioCadastro r = montaRelatorio(
        "Listagem Telefonica", "RTelefones.rpt",
        "SELECT codigo,nome,dddap,foneap,dddpro,fonepro,dddinq,foneinq,dddcoml,fonecoml FROM Aptos  ORDER BY ",
        {{"optApto", "codigo"}, {"optPro", "nome"}, {"Option1", "foneap"}},
        {s("Codigo"), s("Nome"), s("dddap"), s("foneap"), s("dddpro"), s("fonepro"), s("dddinq"), s("foneinq"),
         s("dddcoml"), s("fonecoml")},
        {}, "Não Há Apartamentos Cadastrados !");
    return r;
}

const RelatorioCadastro &relacaoMoradores()
{
    static const RelatorioCadastro r = montaRelatorio(
        "Relação de Moradores", "RMorad.rpt", "SELECT * FROM Moradores ORDER BY ",
        {{"optApto", "codap"}, {"optNome", "nome"}, {"optVinculo", "vinculo"}, {"optNascto", "nascto"}},
        {s("nome"), s("CodAp"), s("vinculo"), s("nascto")}, [](const Recordset &rs) {
            // The data store gives a date as "dd/mm/yyyy" and Null as empty.
            return QStringList{campo(rs, "nome"), campo(rs, "codap"), textoVinculo(campo(rs, "vinculo")),
                               campo(rs, "nascto")};
        });
    return r;
}

const RelatorioCadastro &cadastroVeiculos()
{
    static const RelatorioCadastro r = montaRelatorio(
        "Cadastro de Veículos", "RVec.rpt", "SELECT * FROM Veiculos ORDER BY ",
        {{"optChapa", "chapa"},
         {"optApto", "apto"},
         {"optCor", "cor"},
         {"optAno", "ano"},
         {"optMarca", "marca"},
         {"optModelo", "modelo"},
         {"optProp", "proprietario"}},
        {s("chapa"), s("apto"), s("ano"), s("cor"), s("marca"), s("modelo"), s("obs"), s("proprietario")});
    return r;
}

// ---- Labels -----------------------------------------------------------------

QString sqlEtiquetas(ArquivoEtiqueta arquivo, bool porNome)
{
    QString sql;
    switch (arquivo) {
    case ArquivoEtiqueta::Proprietarios:
        sql = s("SELECT codigo,nome,enderecopro,numeropro,complementopro,cidadepro,ufpro,ceppro FROM Aptos");
        break;
    case ArquivoEtiqueta::Inquilinos:
        sql = s("SELECT codigo,inquilino,enderecoinq,numeroinq,complementoinq,cidadeinq,ufinq,cepinq FROM Aptos");
        break;
    case ArquivoEtiqueta::PessoaJuridica:
        sql = s("SELECT codigo,nome,endereco,numero,complemento,cidade,uf,cep FROM Pjuridica WHERE codigo <> 0");
        break;
    case ArquivoEtiqueta::MaoDeObra:
        sql = s("SELECT codigo,nome,endereco,numero,complemento,cidade,uf,cep FROM Mobra");
        break;
    }
    if (!porNome)
        return sql + s(" ORDER BY codigo");
    return sql + (arquivo == ArquivoEtiqueta::Inquilinos ? s(" ORDER BY inquilino") : s(" ORDER BY nome"));
}

QStringList colunasEtiqueta()
{
    return {s("Codigo"), s("Nome"), s("Endereço"), s("Cidade"), s("UF"), s("CEP")};
}

QStringList linhaEtiqueta(const Recordset &rs)
{
    auto c = [&rs](int i) { return rs.fieldAt(i).text().trimmed(); };
    // Street, number and complement: "Rua das Flores, 120 apto 31".
    QString endereco = c(2);
    if (!c(3).isEmpty())
        endereco += s(", ") + c(3);
    if (!c(4).isEmpty())
        endereco += s(" ") + c(4);
    return {c(0), c(1), endereco, c(5), c(6), c(7)};
}

QString sqlPadrao(const QString &nvias, const QStringList &linhas)
{
    QString sql = s("Update Padrao Set Nvias = '") + nvias + s("',");
    for (int i = 0; i < 4; ++i)
        sql += s("L%1 = \"").arg(i) + linhas.value(i) + (i < 3 ? s("\",") : s("\""));
    return sql + s(" Where Codigo = 1");
}

// ---- File listings ----------------------------------------------------------

const QList<ModeloListagem> &modelosListagem()
{
    static const QList<ModeloListagem> m{
        {1, s("Aptos"), s("Apartamentos: Código, Código Interno e Proprietário")},
        {2, s("Aptos"), s("Apartamentos: Código, Código Interno, Proprietário e Cônjuge")},
        {3, s("Aptos"), s("Código, Proprietário, Telefones, E-mail")},
        {4, s("Aptos"), s("Lista de Endereços/Telefone Proprietário/Inquilino")},
        {5, s("Aptos"), s("Tipo de Apartamento")},
    };
    return m;
}

QString arquivoModelo(int numero) { return s("lrMod") + ZeroEsq(QString::number(numero), 2) + s(".rpt"); }

const QList<CampoFiltro> &camposFiltroListagem()
{
    // Codes are text of six digits: their ranges compare as text.
    static const QList<CampoFiltro> c{
        {s("Código"), s("codigo"), QLatin1Char('S')},
        {s("Nome"), s("nome"), QLatin1Char('S')},
        {s("Código Interno"), s("codinterno"), QLatin1Char('S')},
        {s("Conjuge"), s("Conjugepro"), QLatin1Char('S')},
        {s("Inquilino"), s("inquilino"), QLatin1Char('S')},
    };
    return c;
}

QString ordemListagem(const QString &texto)
{
    static const QList<std::pair<QString, QString>> ordens{
        {s("Código"), s(" ORDER BY codigo")},         {s("Nome"), s(" ORDER BY nome")},
        {s("Código Interno"), s(" ORDER BY codinterno")}, {s("Conjuge"), s(" ORDER BY conjugepro")},
        {s("Inquilino"), s(" ORDER BY inquilino")},
    };
    for (const auto &[t, ordem] : ordens)
        if (t == texto)
            return ordem;
    return {};
}

QString filtroListagem(const CampoFiltro &campo, const QString &de, const QString &ate)
{
    const QString &col = campo.coluna;
    QString clausula;
    if (campo.tipo == QLatin1Char('N')) {
        clausula = col + s(" >= ") + VirgulaPonto(de) + s(" AND ") + col + s(" <= ") + VirgulaPonto(ate) + s(" ");
    } else if (campo.tipo == QLatin1Char('D')) {
        auto mdy = [](const QString &d) {
            return formatDate(QDate::fromString(d, QStringLiteral("dd/MM/yyyy")), s("mm/dd/yyyy"));
        };
        clausula = col + s(" >= #") + mdy(de) + s("# AND ") + col + s(" <= #") + mdy(ate) + s("# ");
    } else {
        clausula = col + s(" >= '") + de + s("' AND ") + col + s(" <= '") + ate + s("' ");
    }
    return s("WHERE ") + clausula;
}

QStringList colunasListagem()
{
    return QString::fromLatin1(
               "codigo nome codinterno tapto tuso situ nrcontpm seguropro quitado cabina aposentado crateio codimob "
               "codfin conjugepro enderecopro numeropro complementopro bairropro cidadepro ufpro ceppro cpfpro rgpro "
               "cnpjpro emailpro inquilino enderecoinq numeroinq complementoinq bairroinq cidadeinq ufinq cepinq "
               "cpfinq rginq cnpjinq emailinq dddap foneap dddpro fonepro dddinq foneinq dddcoml fonecoml tipcob "
               "nemis demis nrecibo tipbolbco observ endpro endinq fap fpro finq fcoml")
        .split(QLatin1Char(' '));
}

RowFiller linhaListagem(Connection &con)
{
    return [&con](const Recordset &rs) {
        static const QStringList colunas = colunasListagem();
        QStringList linha;
        for (const QString &c : colunas.mid(0, colunas.size() - 6))
            linha << rs[c].text();
        const QString tapto = linha[3];
        Recordset tp = con.Execute(s("SELECT descri FROM tpap WHERE codigo = '") + tapto + s("'"));
        linha[3] = tp.eof() ? tapto : tp[s("descri")].text();
        linha[4] = textoUso(linha[4]);
        linha << juntaEndereco({campo(rs, "enderecopro"), campo(rs, "numeropro"), campo(rs, "complementopro"),
                                campo(rs, "bairropro"), campo(rs, "cidadepro"), campo(rs, "ufpro")})
              << juntaEndereco({campo(rs, "enderecoinq"), campo(rs, "numeroinq"), campo(rs, "complementoinq"),
                                campo(rs, "bairroinq"), campo(rs, "cidadeinq"), campo(rs, "ufinq")})
              << juntaFone(campo(rs, "dddap"), campo(rs, "foneap"))
              << juntaFone(campo(rs, "dddpro"), campo(rs, "fonepro"))
              << juntaFone(campo(rs, "dddinq"), campo(rs, "foneinq"))
              << juntaFone(campo(rs, "dddcoml"), campo(rs, "fonecoml"));
        return linha;
    };
}
