// The least that a Qt program with a long list can be: what a start costs at all.

#include <QApplication>
#include <QListView>
#include <QStringList>
#include <QStringListModel>
#include <cstdlib>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    const int count = argc > 1 ? std::atoi(argv[1]) : 1000;
    QStringList rows;
    rows.reserve(count);
    for (int row = 0; row < count; ++row)
        rows.append(QStringLiteral("Game %1 (1990)(Maker)").arg(row));
    QStringListModel model(rows);
    QListView list;
    list.setUniformItemSizes(true);
    list.setModel(&model);
    list.resize(960, 680);
    list.show();
    return QApplication::exec();
}
