#include "demodata.h"

#include "core/conversions.h"

uint32_t Sorteio::next()
{
    // xorshift64*
    state_ ^= state_ >> 12;
    state_ ^= state_ << 25;
    state_ ^= state_ >> 27;
    return uint32_t((state_ * 2685821657736338717ULL) >> 32);
}

int Sorteio::between(int low, int high) { return low + int(next() % uint32_t(high - low + 1)); }

bool Sorteio::chance(int percent) { return between(1, 100) <= percent; }

QString comDigitos(const QString &base, int maxWeight)
{
    QString digits = base;
    for (int round = 0; round < 2; ++round) {
        int soma = 0;
        int weight = 2;
        for (qsizetype i = digits.size() - 1; i >= 0; --i) {
            soma += weight * digits.at(i).digitValue();
            weight = weight == maxWeight ? 2 : weight + 1;
        }
        const int resto = 11 - soma % 11;
        digits += QChar(u'0' + (resto >= 10 ? 0 : resto));
    }
    return digits;
}

QString cpfMascarado(const QString &d)
{
    return d.mid(0, 3) + u'.' + d.mid(3, 3) + u'.' + d.mid(6, 3) + u'-' + d.mid(9, 2);
}

QString cnpjMascarado(const QString &d)
{
    return d.mid(0, 2) + u'.' + d.mid(2, 3) + u'.' + d.mid(5, 3) + u'/' + d.mid(8, 4) + u'-' + d.mid(12, 2);
}

namespace {
const char *const kNomes[] = {
    "Ana", "Maria", "Juliana", "Fernanda", "Patrícia", "Camila", "Beatriz", "Luciana", "Cláudia", "Renata",
    "Adriana", "Márcia", "Sônia", "Helena", "Letícia", "Vânia", "Débora", "Simone", "Tânia", "Gabriela",
    "José", "João", "Antônio", "Carlos", "Paulo", "Pedro", "Lucas", "Luiz", "Marcos", "Rafael",
    "Sérgio", "Fábio", "Rodrigo", "André", "Márcio", "Eduardo", "Roberto", "Gustavo", "Otávio", "Vinícius"};
const char *const kSobrenomes[] = {
    "Silva", "Santos", "Oliveira", "Souza", "Rodrigues", "Ferreira", "Alves", "Pereira", "Lima", "Gomes",
    "Costa", "Ribeiro", "Martins", "Carvalho", "Araújo", "Melo", "Barbosa", "Rocha", "Dias", "Nascimento",
    "Andrade", "Moreira", "Nunes", "Marques", "Machado", "Mendes", "Freitas", "Cardoso", "Ramos", "Gonçalves",
    "Teixeira", "Correia", "Pinto", "Moura", "Cavalcanti", "Monteiro", "Sampaio", "Brandão", "Conceição", "Assunção"};
const char *const kPreposicoes[] = {"", "", "", "da ", "dos ", "de "};

struct Cidade {
    const char *cidade, *uf, *ddd, *cepBase;
    const char *ruas[4];
    const char *bairros[4];
};
const Cidade kCidades[] = {
    {"São Paulo", "SP", "11", "04",
     {"Rua Vergueiro", "Avenida Paulista", "Rua Domingos de Morais", "Alameda Santos"},
     {"Vila Mariana", "Bela Vista", "Paraíso", "Jardim Paulista"}},
    {"Campinas", "SP", "19", "13",
     {"Rua Barão de Jaguara", "Avenida Norte-Sul", "Rua José Paulino", "Avenida Orosimbo Maia"},
     {"Centro", "Cambuí", "Taquaral", "Guanabara"}},
    {"Rio de Janeiro", "RJ", "21", "22",
     {"Rua Voluntários da Pátria", "Rua Conde de Bonfim", "Avenida Nossa Senhora de Copacabana", "Rua São Clemente"},
     {"Botafogo", "Tijuca", "Copacabana", "Flamengo"}},
    {"Belo Horizonte", "MG", "31", "30",
     {"Rua da Bahia", "Avenida Afonso Pena", "Rua Pernambuco", "Rua Sergipe"},
     {"Funcionários", "Savassi", "Lourdes", "Santo Antônio"}},
    {"Curitiba", "PR", "41", "80",
     {"Rua XV de Novembro", "Avenida Sete de Setembro", "Rua Comendador Araújo", "Alameda Dom Pedro II"},
     {"Centro", "Batel", "Água Verde", "Bigorrilho"}},
    {"Porto Alegre", "RS", "51", "90",
     {"Rua dos Andradas", "Avenida Ipiranga", "Rua Padre Chagas", "Avenida Independência"},
     {"Centro Histórico", "Moinhos de Vento", "Bom Fim", "Menino Deus"}},
    {"Recife", "PE", "81", "52",
     {"Avenida Boa Viagem", "Rua do Futuro", "Rua da Aurora", "Avenida Rui Barbosa"},
     {"Boa Viagem", "Graças", "Boa Vista", "Casa Forte"}},
    {"Salvador", "BA", "71", "41",
     {"Avenida Sete de Setembro", "Rua Chile", "Avenida Oceânica", "Rua Marquês de Caravelas"},
     {"Barra", "Graça", "Ondina", "Pituba"}},
};
const char *const kProvedores[] = {"uol.com.br", "terra.com.br", "bol.com.br", "ig.com.br", "gmail.com"};
}

Endereco sorteiaEndereco(Sorteio &s)
{
    const Cidade &c = s.pick(kCidades);
    Endereco e;
    e.rua = QString::fromUtf8(c.ruas[s.between(0, 3)]);
    e.bairro = QString::fromUtf8(c.bairros[s.between(0, 3)]);
    e.cidade = QString::fromUtf8(c.cidade);
    e.uf = QString::fromLatin1(c.uf);
    e.ddd = QString::fromLatin1(c.ddd);
    e.cep = QString::fromLatin1(c.cepBase) + QStringLiteral("%1-%2").arg(s.between(100, 999)).arg(s.between(0, 999), 3, 10, QLatin1Char('0'));
    return e;
}

QString sorteiaTelefone(Sorteio &s) { return QStringLiteral("%1-%2").arg(s.between(3000, 3999)).arg(s.between(0, 9999), 4, 10, QLatin1Char('0')); }

namespace {
// Random digits, the first not zero.
QString digitosSorteados(Sorteio &s, int count)
{
    QString base;
    for (int n = 0; n < count; ++n)
        base += QChar(u'0' + s.between(n == 0 ? 1 : 0, 9));
    return base;
}
} // namespace

QString sorteiaCpf(Sorteio &s) { return comDigitos(digitosSorteados(s, 9), 11); }

QString sorteiaCnpj(Sorteio &s) { return comDigitos(digitosSorteados(s, 8) + QStringLiteral("0001"), 9); }

Pessoa sorteiaPessoa(Sorteio &s)
{
    Pessoa p;
    const QString primeiro = QString::fromUtf8(s.pick(kNomes));
    const QString meio = QString::fromUtf8(s.pick(kSobrenomes));
    QString ultimo = QString::fromUtf8(s.pick(kSobrenomes));
    while (ultimo == meio)
        ultimo = QString::fromUtf8(s.pick(kSobrenomes));
    p.nome = primeiro + u' ' + QString::fromLatin1(s.pick(kPreposicoes)) + meio + u' ' + ultimo;
    p.cpf = sorteiaCpf(s);
    p.rg = QStringLiteral("%1.%2.%3-%4")
               .arg(s.between(10, 59))
               .arg(s.between(0, 999), 3, 10, QLatin1Char('0'))
               .arg(s.between(0, 999), 3, 10, QLatin1Char('0'))
               .arg(s.between(0, 9));
    p.email = SemAcento(primeiro).toLower() + u'.' + SemAcento(ultimo).toLower() + u'@'
        + QString::fromLatin1(s.pick(kProvedores));
    p.endereco = sorteiaEndereco(s);
    p.numero = QString::number(s.between(10, 2800));
    p.complemento = s.chance(50) ? QStringLiteral("Apto %1").arg(s.between(11, 184)) : QString();
    p.fone = sorteiaTelefone(s);
    return p;
}
