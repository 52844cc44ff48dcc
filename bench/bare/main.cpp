#include <QApplication>
#include <QDialog>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <cstdio>
#include <cstdlib>

// A bare form with as many controls as asked for: what a start costs at the least.
int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QDialog form;
  auto* layout = new QGridLayout(&form);
  const int controls = argc > 1 ? std::atoi(argv[1]) : 0;
  constexpr int kColumns = 12;
  for (int i = 0; i < controls; ++i) {
    QWidget* control = nullptr;
    switch (i % 3) {
      case 0:
        control = new QLabel(QString::number(i));
        break;
      case 1:
        control = new QLineEdit;
        break;
      default:
        control = new QPushButton(QString::number(i));
        break;
    }
    layout->addWidget(control, i / kColumns, i % kColumns);
  }
  form.show();
  QCoreApplication::processEvents();
  std::printf("idle\n");
  std::fflush(stdout);
  std::_Exit(0);
}
