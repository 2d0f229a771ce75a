#include "banks/remessa.h"

#include "banks/calcbarra.h"
#include "core/conversions.h"
#include "core/datastore.h"
#include "core/prompter.h"
#include "core/transaction.h"

#include <QFile>

#include <limits>

// ---- Pieces shared by the layouts -------------------------------------------

QString campoTexto(const QString &text, int width)
{
    return text.left(width).leftJustified(width, u' ');
}

QString valorRemessa(Money vtotal)
{
    return ZeroEsq(moneyText(Money::fromUnits(vtotal.units() * 100)), 13);
}

QString numeroSacado(const Sacado &s, int width)
{
    if (s.cpfVazio)
        return QString(width, u'0');
    // D: the first 9 digits of the document and the last 2 characters as typed.
    const QString d = digitos(s.cpf).left(9) + s.cpf.right(2);
    return ZeroEsq(doubleText(val(d)), width);
}

QString enderecoRemessa(const Sacado &s)
{
    return campoTexto(s.endereco.trimmed().left(34) + u',' + s.numero, 40);
}

QString cepRemessa(const QString &cep)
{
    return campoTexto(cep.left(5) + cep.right(3), 8);
}

QString especieRemessa(const QString &especie)
{
    return ZeroEsq(especie.left(2), 2);
}

QString instrucaoRemessa(const QString &instrucao)
{
    return ZeroEsq(doubleText(val(instrucao)), 2);
}

QString empresaRemessa(const DadosRemessa &d)
{
    if (d.cgc == kCgcVazio)
        return QStringLiteral("101000") + bareText(d.cpf);
    return QStringLiteral("102") + bareText(d.cgc);
}

QString sequenciaRemessa(int16_t sequencia)
{
    return ZeroEsq(QString::number(sequencia), 6);
}

QString trailerRemessa(int16_t sequencia)
{
    return QStringLiteral("9") + QString(393, u' ') + sequenciaRemessa(sequencia);
}

QString carteiraRemessa(const ParametrosBanco &p)
{
    if (p.banco == u"341")
        return ZeroEsq(p.carteiraNua(), 3);
    if (p.banco == u"422")
        return ZeroEsq(p.carteiraNua().left(2), 2);
    return ZeroEsq(p.carteiraNua(), 2);
}

Sacado sacadoDoApto(const Recordset &apto, bool inquilino, const QString &banco)
{
    const bool usaInquilino = inquilino && apto["tuso"].text() == u"02";
    const auto col = [&](const char *tenant, const char *owner) {
        return apto[QString::fromLatin1(usaInquilino ? tenant : owner)].text();
    };
    Sacado s;
    s.cpf = col("cpfinq", "cpfpro");
    s.nome = col("inquilino", "nome");
    s.endereco = col("enderecoinq", "enderecopro");
    s.numero = col("numeroinq", "numeropro");
    s.bairro = col("bairroinq", "bairropro");
    s.cep = col("cepinq", "ceppro");
    s.cidade = col("cidadeinq", "cidadepro");
    s.uf = col("ufinq", "ufpro");
    s.cpfVazio = s.cpf.isEmpty() || s.cpf == kCpfVazio;
    // Bank 422 tests the tenant's CPF but builds the number from the tenant's CNPJ.
    if (usaInquilino && banco == u"422")
        s.cpf = apto["cnpjinq"].text();
    return s;
}

// ---- The run ------------------------------------------------------------------

QString FormRemessa::caminhoArquivo() const
{
    return pasta + QStringLiteral("/") + nomeArquivo + QStringLiteral(".TXT");
}

namespace {
// One line of the file: the text as the system's single-byte code page holds
// it, ended by CR LF.
void escreveLinha(QFile &file, const QString &record)
{
    QByteArray line = record.toLatin1();
    line += "\r\n";
    if (file.write(line) != line.size())
        throw RunFailure(QStringLiteral("Erro de gravação no arquivo ") + file.fileName());
}

// The sequence and the count are 16-bit: one more past 32767 stops the run
// rather than write a negative sequence into the file.
void sobe16(int16_t &n)
{
    if (n == std::numeric_limits<int16_t>::max())
        throw RunFailure(QStringLiteral("Estouro"));
    ++n;
}

QString header(const DadosRemessa &d, int16_t sequencia)
{
    const QString &banco = d.parametros.banco;
    if (banco == u"341")
        return header341(d, sequencia);
    if (banco == u"422")
        return header422(d, sequencia);
    return header151(d, sequencia);
}

QString detalhe(const DadosRemessa &d, const ReciboBanco &r, const Boleto &b, const Sacado &s, int16_t sequencia)
{
    const QString &banco = d.parametros.banco;
    if (banco == u"341")
        return detalhe341(d, r, b, s, sequencia);
    if (banco == u"422")
        return detalhe422(d, r, b, s, sequencia);
    return detalhe151(d, r, b, s, sequencia);
}
} // namespace

FimRemessa cmdGerarR(Connection &con, FormRemessa &form)
{
    DadosRemessa &d = form.dados;
    const QString banco = d.parametros.banco;
    if (banco != u"151" && banco != u"422" && banco != u"341") {
        MsgBox(QStringLiteral("Este Banco não utiliza Remessa ! Utilize a opção Gerar Barras"), vbOKOnly,
               QStringLiteral("Atenção !!"));
        return FimRemessa::BancoSemRemessa;
    }
    if (form.selecao.isEmpty()) {
        MsgBox(QStringLiteral("Falta especificar os recibos da remessa, use o botão [Selecionar] !"));
        return FimRemessa::FaltaSelecao;
    }
    if (form.nomeArquivo.trimmed().isEmpty()) {
        MsgBox(QStringLiteral("Falta especificar o nome do arquivo remessa a ser criado, veja a guia "
                              "Parâmetros/Remessa !"),
               vbOKOnly, QStringLiteral("Atenção !"));
        return FimRemessa::FaltaNome;
    }
    const QString caminho = form.caminhoArquivo();
    if (QFile::exists(caminho)) {
        const int answer = MsgBox(QStringLiteral("Já existe um arquivo com este nome no local indicado, sobregrava ?"),
                                  vbYesNo + vbQuestion + vbDefaultButton2, QStringLiteral("Atenção"));
        if (answer == vbNo)
            return FimRemessa::NaoSobregrava;
        QFile::remove(caminho);
    }
    Recordset rs = con.Execute(form.selecao);
    if (rs.eof()) {
        MsgBox(QStringLiteral("Não há registros para esta condição !"), vbOKOnly, QStringLiteral("Atenção !"));
        return FimRemessa::SemRegistros;
    }

    QFile file(caminho);
    if (!file.open(QIODevice::WriteOnly))
        throw RunFailure(QStringLiteral("Não foi possível criar o arquivo ") + caminho);

    if (banco == u"341" && digitos(d.parametros.cedente).size() > 6) {
        MsgBox(QStringLiteral("Conta Corrente do Banco Itaú tem até seis números, incluindo o dígito, confira !"),
               vbOKOnly, QStringLiteral("Atenção..."));
        file.close();
        return FimRemessa::ContaItauLonga;
    }
    const QString carteira = carteiraRemessa(d.parametros);
    int32_t contador = 0;
    if (banco == u"422") {
        const QString primeiro = rs["codigo"].text();
        contador = contador422Inicial(form.nnr, &primeiro);
    }

    form.contagem = 0;
    form.sequencia = 1;
    escreveLinha(file, header(d, form.sequencia));
    sobe16(form.sequencia);

    for (; !rs.eof(); rs.moveNext()) {
        const ReciboBanco r{rs["codigo"].text(), rs["vtotal"].toMoney(), rs["dvencto"].toDate()};
        form.trabalho = calculaBoleto(banco, r, d.parametros, contador);
        if (!form.trabalho.recusa.isEmpty()) {
            file.close();
            MsgBox(form.trabalho.recusa, vbOKOnly, QStringLiteral("Atenção !"));
            return FimRemessa::Recusado;
        }
        // The receipt's bank fields and the read of its unit are one step.
        Transaction passo(con);
        con.Execute(updateRecibosBanco(d.dataGeracao, form.trabalho, banco, r.codigo));

        const QString codAp = rs["codap"].text();
        Recordset apto = con.Execute(QStringLiteral("SELECT * FROM Aptos WHERE codigo = '") + codAp
                                     + QStringLiteral("'"));
        passo.commit();
        if (apto.eof()) {
            // The file is left as it stands, without a trailer.
            file.close();
            MsgBox(QStringLiteral("O Apto ") + codAp + QStringLiteral("  não foi localizado, geração abortada, verifique !"),
                   vbOKOnly, QStringLiteral("Atenção !"));
            return FimRemessa::AptoNaoLocalizado;
        }
        const Sacado s = sacadoDoApto(apto, form.inquilino, banco);
        // Wallet "XX" numbers the receipt and writes no record.
        if (banco == u"341" || carteira != u"XX") {
            escreveLinha(file, detalhe(d, r, form.trabalho, s, form.sequencia));
            sobe16(form.sequencia);
        }
        sobe16(form.contagem);
        ++contador;
        if (form.progresso)
            form.progresso(form.contagem, int(rs.recordCount()));
    }

    if (banco == u"422") {
        form.nnr = ritauNn422(form.trabalho.nrbco);
        con.Execute(QStringLiteral("UPDATE Parametros Set RitauNn = '") + form.nnr + QStringLiteral("'")
                    + QStringLiteral(" Where codigo = 1"));
    }
    escreveLinha(file, trailerRemessa(form.sequencia));
    file.close();
    MsgBox(QStringLiteral("Arquivo Finalizado, foram gerados ") + ZeroEsq(QString::number(form.contagem), 4)
               + QStringLiteral(" recibos neste arquivo !"),
           vbOKOnly, QStringLiteral("Finalização..."));
    if (form.gravaParametros)
        form.gravaParametros();
    return FimRemessa::Gerado;
}
