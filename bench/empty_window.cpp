// SPDX-License-Identifier: MIT
// The least that a program with a window can be: what the start of ours is held against. With the argument "text" the
// window is as large as ours and has a menu bar, a tool bar and a status line with a word in each.
#include <QApplication>
#include <QMainWindow>
#include <QMenuBar>
#include <QStatusBar>
#include <QToolBar>

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QMainWindow window;
    if (argc > 1) {
        window.menuBar()->addMenu("Menu");
        window.addToolBar("Tool bar")->addAction("Tool");
        window.statusBar()->showMessage("Status");
        window.resize(960, 790);
    }
    window.show();
    return QApplication::exec();
}
