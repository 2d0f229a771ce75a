// The yardstick of bench_slips: N plain Bradesco slips of the npm library
// gerar-boletos in one PDF. Usage: node gerar_boletos.js NODE_MODULES N OUT.pdf
// Prints the seconds of the rendering (the slips' data built before).
const path = require('path');
const fs = require('fs');
const [modules, count, out] = process.argv.slice(2);
const lib = path.join(modules, 'gerar-boletos');
const { Bancos, Boletos } = require(lib);
const { Gerador } = require(path.join(lib, 'lib/utils/functions/boletoUtils'));

const infos = [];
for (let i = 0; i < Number(count); i++) {
  const b = new Boletos({
    banco: new Bancos.Bradesco(),
    pagador: {
      nome: 'José Antônio Ferreira ' + i,
      RegistroNacional: '12345678909',
      endereco: { logradouro: 'Rua das Acácias, 120', bairro: 'Jardim', cidade: 'São Paulo', estadoUF: 'SP', cep: '01001-000' },
    },
    instrucoes: ['Não receber após 30 dias do vencimento', 'Após o vencimento, multa de 2%'],
    beneficiario: {
      nome: 'Condomínio Edifício Solar das Acácias',
      cnpj: '43576788000191',
      dadosBancarios: {
        carteira: '09', agencia: '0101', agenciaDigito: '5', conta: '0326446', contaDigito: '0',
        nossoNumero: String(100000 + i).padStart(11, '0'), nossoNumeroDigito: '8',
      },
      endereco: { logradouro: 'Rua Vergueiro, 1000', bairro: 'Centro', cidade: 'São Paulo', estadoUF: 'SP', cep: '01504-000' },
    },
    boleto: {
      numeroDocumento: String(i), especieDocumento: 'DM', valor: 400 + (i % 97) + 0.37,
      datas: { vencimento: '03-10-2008', processamento: '03-01-2008', documentos: '02-25-2008' },
    },
  });
  b.gerarBoleto();
  infos.push(b.boletoInfo);
}

// The library ends the stream itself; the time runs until the file is whole.
const stream = fs.createWriteStream(out);
const start = process.hrtime.bigint();
stream.on('finish', () => {
  const s = Number(process.hrtime.bigint() - start) / 1e9;
  process.stdout.write(s.toFixed(6) + '\n');
});
new Gerador(infos).gerarPDF({ creditos: '', stream });
