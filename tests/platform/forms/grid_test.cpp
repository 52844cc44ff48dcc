#include <QApplication>
#include <QClipboard>
#include <QTemporaryDir>
#include <QTest>
#include <QTextDocument>

#include "platform/forms/measures.h"
#include "sample_form.h"

using namespace Qt::StringLiterals;
using forms::GridModel;

class Grid : public FormTest {
 protected:
  GridModel& grid() { return sample.Flex->grid(); }
  QString column(int column) {
    QStringList cells;
    for (int row = 1; row < grid().rows(); ++row) cells << grid().text(row, column);
    return cells.join(u'|');
  }
  QList<int> selected() {
    QList<int> rows;
    for (const QModelIndex& index : sample.Flex->selectionModel()->selectedRows()) rows << index.row() + 1;
    return rows;
  }
};

TEST_F(Grid, KeepsTheCurrentRowAndTheViewFollowsIt) {
  grid().addItem(u"1\tAna\t3\tsurplus\tfields"_s);
  EXPECT_EQ(grid().row(), 0);
  EXPECT_TRUE(selected().isEmpty());
  grid().addItem(u"2"_s);
  grid().setRow(2);
  grid().addItem(u"3"_s);
  EXPECT_EQ(grid().row(), 2);
  EXPECT_EQ(grid().text(2, 1), QString());
  EXPECT_EQ(grid().text(9, 9), QString());
  grid().setText(9, 9, u"x"_s);
  grid().setText(3, 1, u"a\tb"_s);
  EXPECT_EQ(grid().text(3, 1), u"a b"_s);
  for (const int left : {2, 1}) {  // the row that stands there now, or the last one
    grid().removeItem(left);
    EXPECT_EQ(grid().row(), left);
    EXPECT_EQ(selected(), QList<int>{left});
  }
  grid().removeItem(0);
  grid().removeItem(1);
  EXPECT_EQ(grid().rows(), 1);
  EXPECT_EQ(grid().row(), 0);
}

TEST_F(Grid, TipsShowTextsAsTheyAre) {
  grid().addItem(u"<img src='/etc/hostname'>A&B"_s);
  QTextDocument tip;
  tip.setHtml(grid().index(0, 0).data(Qt::ToolTipRole).toString());
  EXPECT_EQ(tip.toPlainText(), grid().text(1, 0));
}

TEST_F(Grid, SortsStablyByValueWithBlanksFirstAndLooksFollowTheTexts) {
  for (const QStringView row : {u"10\ta", u"9\tb", u"x\tc", u"9\td", u"\te", u"1,5\tf", u"É\tg", u"B\th"}) {
    grid().addItem(row.toString());
  }
  grid().setLook(1, [this](int row) {
    return grid().text(row, 0) == u"x" ? forms::GridLook{Qt::red, Qt::AlignRight} : forms::GridLook();
  });
  grid().sortAscending(0);
  EXPECT_EQ(column(0), u"|1,5|9|9|10|B|x|É"_s);
  EXPECT_EQ(column(1), u"e|f|b|d|a|h|c|g"_s);
  const auto look = [this](int row, int role) { return grid().index(row - 1, 1).data(role); };
  EXPECT_EQ(look(7, Qt::BackgroundRole).value<QColor>(), QColor(Qt::red));
  EXPECT_FALSE(look(3, Qt::BackgroundRole).isValid());
  EXPECT_EQ(look(7, Qt::TextAlignmentRole).value<Qt::Alignment>(), Qt::AlignRight | Qt::AlignVCenter);
}

TEST_F(Grid, MakesTheTextsOfALotWhenTheyAreLookedAt) {
  int made = 0;
  grid().addItem(u"first"_s);
  grid().addRows(50'000, [&made](qsizetype row, int column) {
    ++made;
    return u"%1\t%2"_s.arg(50'000 - row).arg(column);
  });
  support::settle();
  static_cast<void>(sample.Flex->grab());
  EXPECT_GT(made, 0);
  EXPECT_LT(made, 5'000);
  grid().setText(3, 1, u"own"_s);
  grid().removeItem(1);
  EXPECT_EQ(grid().text(2, 0) + u'|' + grid().text(2, 1) + u'|' + grid().text(2, 2),
            u"49999 0|own|49999 2"_s);
  grid().sortAscending(0);
  EXPECT_EQ(grid().text(1, 0), u"1 0"_s);
}

TEST_F(Grid, ClicksAndKeysSetTheCurrentRowAndEmptyGroundChangesNothing) {
  grid().addItem(u"1\tAna\t3"_s);
  grid().addItem(u"2\tBia\t4"_s);
  support::clickRow(sample.Flex, 2, 2);
  EXPECT_EQ(grid().row(), 2);
  EXPECT_EQ(grid().col(), 2);
  EXPECT_EQ(sample.taken(), u"txtA- Flex+ Flex!"_s);
  QTest::mouseClick(sample.Flex->viewport(), Qt::LeftButton, {},
                    QPoint(20, sample.Flex->viewport()->height() - 4));
  EXPECT_EQ(grid().row(), 2);
  EXPECT_EQ(sample.taken(), QString());
  support::doubleClick(sample.Flex, 0, 1);
  EXPECT_EQ(grid().row(), 0);
  EXPECT_TRUE(sample.taken().endsWith(u"Flex!!"_s));
  support::key(sample.Flex, Qt::Key_Return);  // no row is current
  for (int press = 0; press < 3; ++press) support::key(sample.Flex, Qt::Key_Down);
  EXPECT_EQ(grid().row(), 2);
  support::key(sample.Flex, Qt::Key_Return);
  EXPECT_EQ(sample.taken(), u"Flex!!"_s);
  support::key(sample.Flex, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), u"Nome\tValor\nBia\t4"_s);
  support::key(sample.Flex, Qt::Key_Up, Qt::ShiftModifier);
  support::key(sample.Flex, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), u"Nome\tValor\nAna\t3\nBia\t4"_s);
}

TEST_F(Grid, ADraggedWidthOutlivesLayoutAndFormAndAHiddenColumnStaysHidden) {
  const QTemporaryDir folder;
  forms::measures::keepIn(folder.filePath(u"m/measures.ini"_s));
  sample.rememberMeasures();
  sample.Flex->setSpareColumns({1, 2});
  sample.Flex->setColumnWidth(2, 123);
  sample.resize(700, 500);
  sample.hide();
  forms::registry::clear();
  auto& again = forms::form<frmSample>();
  again.rememberMeasures();
  again.showForm();
  support::settle();
  EXPECT_EQ(again.size(), QSize(700, 500));
  EXPECT_TRUE(again.Flex->isColumnHidden(0));
  EXPECT_EQ(again.Flex->columnWidth(2), 123);
  EXPECT_EQ(again.Flex->columnWidth(1) + 123, again.Flex->viewport()->width());
  forms::measures::keepIn({});
}
