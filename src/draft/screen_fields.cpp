#include "draft/screen_fields.h"

#include <QCryptographicHash>
#include <QStringList>
#include <QTabWidget>
#include <algorithm>
#include <array>
#include <span>
#include <vector>

#include "platform/forms/form.h"
#include "platform/forms/rest.h"
#include "quote/grids.h"
#include "quote/header_fields.h"

using namespace Qt::StringLiterals;

namespace rascunho {

namespace {

enum class Origem { Tela, Banco };

struct Campo {
  QStringView nome;
  Origem origem = Origem::Tela;  ///< where a quote that was just loaded has it from
  int colunas = 0;               ///< of a grid, how many come from there; 0 for all
};

/// What belongs to a quote beside its header.
constexpr std::array kItens{
    Campo{u"opPROD"},
    Campo{u"opPROT"},
    Campo{u"txtCodProduto"},
    Campo{u"txtidProdProt"},
    Campo{u"lblDescProt"},
    Campo{u"lblVrBrutoProt"},
    Campo{u"txtDesconto"},
    Campo{u"lblVrLiqProt"},
    Campo{u"txtQuantidade"},
    Campo{u"lblUnidadeMedida"},
    Campo{u"txtObseDetaItem"},
    Campo{u"lblTotaGeral"},
    Campo{u"lblTotaAprov"},
    Campo{u"lblTotaNaoAprov"},
    Campo{u"lblTotalLiquido"},
    Campo{u"cboCole"},
    Campo{u"txtNomeHomg"},
    Campo{u"Flex", Origem::Banco},
    // The rows that they are tied to depend on the order in which the items come.
    Campo{u"FlexMonta", Origem::Banco, grades::material::kColunasDaMontagem},
    Campo{u"FlexHomg", Origem::Banco},
    Campo{u"ItemNaMontagem"},
};

constexpr std::array kFechamento{
    Campo{u"lblVrBrutoTOT"}, Campo{u"txtDescontoGeral"},  Campo{u"txtPercDesc"},
    Campo{u"lblVrLiqTOT"},   Campo{u"cboTransportadora"}, Campo{u"txtObservacaoPedido"},
    Campo{u"txtIdCondPg"},   Campo{u"lblParcelas"},       Campo{u"lblPrazos"},
    Campo{u"mskDataBase"},   Campo{u"txtValorSinal"},     Campo{u"Flex2"},
};

// What was found on the tabs is no work of the user's: it is found again.
constexpr std::array kMontagem{
    Campo{u"SSTab1"},
    Campo{u"txtCOD"},
    Campo{u"opDesc"},
    Campo{u"opCodigo"},
    Campo{u"txtQuantidade"},
    Campo{u"txtQuantidadeSombra"},
    Campo{u"txtObservacoes"},
    Campo{u"txtObservacoesSombra"},
    Campo{u"lblTotalUnitarioProduto"},
    Campo{u"Flex"},
    Campo{u"FlexSombra"},
};

const std::vector<Campo>& orcamento() {
  static const std::vector<Campo> todos = [] {
    std::vector<Campo> campos;
    for (const auto& campo : cabecalho::campos())
      for (const QStringView nome : {campo.controle, campo.outro})
        if (!nome.isEmpty()) campos.push_back({nome, Origem::Banco});
    campos.insert(campos.end(), kItens.begin(), kItens.end());
    return campos;
  }();
  return todos;
}

struct Tela {
  QStringView nome;
  std::span<const Campo> campos;
  bool soAberta = false;  ///< counts only while it is open
};

constexpr QStringView kOrcamento = u"frmPropCmrcTL";

std::array<Tela, 3> telas() {
  return {Tela{kOrcamento, orcamento()}, Tela{u"frmConfirmaPropCmrcTL", kFechamento},
          Tela{u"frmMontarProduto", kMontagem, true}};
}

constexpr QChar kTab = u'\t';
constexpr QChar kFim = u'\n';

bool conta(const Tela& tela) {
  const forms::Form* formulario = forms::registry::find(tela.nome.toString());
  return formulario != nullptr && (!tela.soAberta || formulario->isVisible());
}

QObject* controle(QStringView tela, QStringView nome) {
  return forms::findControl(tela.toString(), nome.toString());
}

forms::GridModel* grade(QObject* controle) {
  if (auto* vista = qobject_cast<forms::FlexGrid*>(controle)) return &vista->grid();
  return qobject_cast<forms::GridModel*>(controle);
}

/// Option buttons are set or not; tabs have a number.
QString valor(const QObject* controle) {
  if (const auto* opcao = qobject_cast<const QAbstractButton*>(controle))
    return opcao->isChecked() ? u"1"_s : u"0"_s;
  if (const auto* abas = qobject_cast<const QTabWidget*>(controle))
    return QString::number(abas->currentIndex());
  return forms::controlText(controle);
}

void poeValor(QObject* controle, const QString& texto) {
  if (auto* opcao = qobject_cast<QAbstractButton*>(controle)) {
    if (texto == u"1") opcao->setChecked(true);
  } else if (auto* abas = qobject_cast<QTabWidget*>(controle)) {
    abas->setCurrentIndex(texto.toInt());
  } else {
    forms::setControlText(controle, texto);
  }
}

QString linhaDaTela(QStringView tela) { return u"tela\t"_s + tela.toString() + kFim; }

/// A text without line ends; tabs become the given letter.
void acrescenta(QString& linhas, QStringView texto, QChar tab) {
  const auto especial = [](QChar letra) { return letra < u' ' || letra == u'\\'; };
  if (std::none_of(texto.cbegin(), texto.cend(), especial)) {
    linhas += texto;
    return;
  }
  for (const QChar letra : texto) {
    if (letra == u'\\')
      linhas += u"\\\\";
    else if (letra == kFim)
      linhas += u"\\n";
    else if (letra == u'\r')
      linhas += u"\\r";
    else
      linhas += letra == kTab ? tab : letra;
  }
}

void escreveGrade(QString& texto, const forms::GridModel& grade) {
  texto += QString::number(grade.row()) + kTab + QString::number(grade.rows() - 1) + kFim;
  for (int linha = 1; linha < grade.rows(); ++linha) {
    for (int coluna = 0; coluna < grade.cols(); ++coluna) {
      acrescenta(texto, grade.text(linha, coluna), u' ');
      texto += kTab;
    }
    texto += kFim;
  }
}

/// The rows that a digest counts, in an order of their own.
QStringList linhasOrdenadas(const forms::GridModel& grade, int colunas) {
  QStringList linhas;
  for (int linha = 1; linha < grade.rows(); ++linha) {
    QString celulas;
    for (int coluna = 0; coluna < (colunas > 0 ? colunas : grade.cols()); ++coluna)
      celulas += grade.text(linha, coluna) + kTab;
    linhas << celulas;
  }
  std::sort(linhas.begin(), linhas.end());
  return linhas;
}

}  // namespace

QString emUmaLinha(const QString& texto) {
  QString linha;
  acrescenta(linha, texto, kTab);
  return linha;
}

QString comoEra(QStringView linha) {
  QString texto;
  texto.reserve(linha.size());
  for (qsizetype i = 0; i < linha.size(); ++i) {
    const bool escapada = linha[i] == u'\\' && i + 1 < linha.size();
    if (escapada) ++i;
    texto += !escapada ? linha[i] : linha[i] == u'n' ? kFim : linha[i] == u'r' ? QChar(u'\r') : linha[i];
  }
  return texto;
}

QString retrato() {
  QString texto;
  for (const Tela& tela : telas()) {
    if (!conta(tela)) continue;
    texto += linhaDaTela(tela.nome);
    for (const Campo& campo : tela.campos) {
      QObject* objeto = controle(tela.nome, campo.nome);
      texto += campo.nome;
      texto += kTab;
      if (const forms::GridModel* modelo = grade(objeto))
        escreveGrade(texto, *modelo);
      else
        texto += emUmaLinha(valor(objeto)) + kFim;
    }
  }
  return texto;
}

QString campoAtual() {
  const forms::Form* formulario = forms::registry::find(kOrcamento.toString());
  const QWidget* parte = forms::controlBeingLeft();
  if (formulario == nullptr || parte == nullptr || !formulario->isAncestorOf(parte))
    parte = formulario == nullptr ? nullptr : formulario->focusWidget();
  for (; parte != nullptr; parte = parte->parentWidget())
    for (const Campo& campo : orcamento())
      if (parte->objectName() == campo.nome) return parte->objectName();
  return {};
}

bool temTela(const QString& retrato, QStringView tela) {
  const QString linha = linhaDaTela(tela);
  return retrato.startsWith(linha) || retrato.contains(kFim + linha);
}

void repoe(const QString& retrato, QStringView tela) {
  const QList<QStringView> linhas = QStringView(retrato).split(kFim);
  bool desta = false;
  for (qsizetype i = 0; i < linhas.size(); ++i) {
    const qsizetype meio = linhas[i].indexOf(kTab);
    if (meio < 0) continue;
    const QStringView nome = linhas[i].first(meio);
    const QStringView resto = linhas[i].sliced(meio + 1);
    if (nome == u"tela") desta = resto == tela;
    if (!desta || nome == u"tela") continue;
    QObject* objeto = controle(tela, nome);
    forms::GridModel* modelo = grade(objeto);
    if (modelo == nullptr) {
      if (objeto != nullptr) poeValor(objeto, comoEra(resto));
      continue;
    }
    QStringList itens;
    const qsizetype ultima = std::min(i + resto.mid(resto.indexOf(kTab) + 1).toInt(), linhas.size() - 1);
    while (i < ultima) itens << comoEra(linhas[++i]);
    while (modelo->rows() > 1) modelo->removeItem(modelo->rows() - 1);
    for (const QString& item : itens) modelo->addItem(item);
    modelo->setRow(resto.first(std::max<qsizetype>(resto.indexOf(kTab), 0)).toInt());
  }
}

QString resumoDoLido() {
  QCryptographicHash resumo(QCryptographicHash::Sha1);
  for (const Campo& campo : orcamento()) {
    if (campo.origem != Origem::Banco) continue;
    QObject* objeto = controle(kOrcamento, campo.nome);
    const forms::GridModel* modelo = grade(objeto);
    const QString texto =
        modelo == nullptr ? valor(objeto) : linhasOrdenadas(*modelo, campo.colunas).join(kFim);
    resumo.addData((texto + u'\0').toUtf8());
  }
  return QString::fromLatin1(resumo.result().toHex());
}

}  // namespace rascunho
