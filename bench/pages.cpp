#include <QFileInfo>

#include "harness.h"
#include "measurements.h"
#include "platform/files/paths.h"
#include "rows.h"
#include "run/context.h"
#include "search/frmBROWSE_PRODUTO.h"

using namespace Qt::StringLiterals;

namespace bench {

void picturing() {
  for (const int count : {100, 1000, 10'000}) {
    Bench company;
    company.fill(articleRows(count));
    company.start();
    auto& browse = forms::form<frmBROWSE_PRODUTO>();
    browse.cmdPesquisa->click();
    const QString folder = files::resolve(contexto().PathImagens);
    QString page;
    measure(company, {.name = "picture page of found articles",
                      .size = count,
                      .prepare = [] {},
                      .handler = [&] { page = browse.MontaDetalheHTML(); },
                      .runs = 5,
                      // Three looks at the disk an article is what finding its picture takes.
                      .floorExtra =
                          [&] {
                            for (int i = 1; i <= count; ++i)
                              for (const QString& form : {u".jpg"_s, u"W2.jpg"_s, u"S3.jpg"_s})
                                static_cast<void>(QFileInfo::exists(
                                    folder + u"/ART-%1"_s.arg(i, 5, 10, QChar(u'0')) + form));
                          }});
  }
}

}  // namespace bench
