// The Word and PDF files of the quote on view.
#include "documents/document_names.h"
#include "documents/document_values.h"
#include "documents/frmPedHTML.h"
#include "documents/word.h"
#include "platform/files/contents.h"
#include "platform/forms/controls.h"

using namespace Qt::StringLiterals;

void frmPedHTML::cmdPDF_Click() {
  const qint32 id = documento().IdDocumento;
  // The stem is the customer's copy whatever is on view.
  const QString doc = arquivoDocumento(u"orca_cliente"_s, id, u".doc"_s);
  const QString pdf = arquivoDocumento(u"orca_cliente"_s, id, u".pdf"_s);
  pdf_.clear();
  files::removeIfThere(doc);
  files::removeIfThere(pdf);
  {
    const forms::WaitPointer espera;
    DocumentoWord(QString::number(id), doc, pdf);
  }
  pdf_ = pdf;
  vias_.front().painel->navigate(pdf);
  SSTab1->setCurrentIndex(0);
  mostraCaminho(pdf, u"PDF gravado em:"_s);
}

void frmPedHTML::cmdWord_Click() {
  const forms::WaitPointer espera;
  gravaAmostraWord(documento().IdDocumento);
  mostraCaminho(kArquivoAmostra, u"Word gravado em:"_s);
}
