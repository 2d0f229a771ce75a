#pragma once
// Deterministic, realistic data for the demo installation: people, firms,
// addresses and tax numbers whose check digits are right.
#include <QString>
#include <cstdint>

// A small deterministic generator (the same seed gives the same installation).
class Sorteio {
public:
    explicit Sorteio(uint64_t seed) : state_(seed ? seed : 1) {}
    uint32_t next();
    int between(int low, int high);  // low..high, both included
    bool chance(int percent);
    template <class T, size_t N>
    const T &pick(const T (&list)[N]) { return list[between(0, int(N) - 1)]; }

private:
    uint64_t state_;
};

// Check digits by modulus 11 with weights 2..maxWeight from the right (10 and
// 11 give 0): two for a CPF (maxWeight 11), two for a CNPJ (maxWeight 9).
QString comDigitos(const QString &base, int maxWeight);
QString cpfMascarado(const QString &digits);    // "123.456.789-09"
QString cnpjMascarado(const QString &digits);   // "12.345.678/0001-95"

struct Endereco {
    QString rua, bairro, cidade, uf, cep, ddd;
};

struct Pessoa {
    QString nome;
    QString cpf;  // eleven digits, valid
    QString rg;   // "##.###.###-#"
    QString email;
    Endereco endereco;
    QString numero, complemento, fone;
};

Pessoa sorteiaPessoa(Sorteio &s);
Endereco sorteiaEndereco(Sorteio &s);
QString sorteiaTelefone(Sorteio &s);
QString sorteiaCpf(Sorteio &s);
QString sorteiaCnpj(Sorteio &s);
