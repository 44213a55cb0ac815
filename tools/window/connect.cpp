// SPDX-License-Identifier: MIT
#include "window/connect.h"

#include "window/engine/engine.h"
#include "window/main_window.h"

namespace ztk::window {

void Connect(MainWindow *window, Engine *engine) {
  QObject::connect(window, &MainWindow::chosen, engine, &Engine::choose);
  QObject::connect(window, &MainWindow::undoWanted, engine, &Engine::undo);
  QObject::connect(window, &MainWindow::resendWanted, engine,
                   &Engine::resendAll);
  QObject::connect(window, &MainWindow::autoapplyWanted, engine,
                   &Engine::setAutoapply);
  QObject::connect(window, &MainWindow::checkWanted, engine, &Engine::checkNow);
  QObject::connect(window, &MainWindow::previewWanted, engine,
                   &Engine::previewClub);
  QObject::connect(window, &MainWindow::applyWanted, engine,
                   &Engine::applyClub);
  QObject::connect(window, &MainWindow::saveWanted, engine, &Engine::saveClub);
  QObject::connect(window, &MainWindow::deleteWanted, engine,
                   &Engine::deleteClub);
  QObject::connect(window, &MainWindow::clubsWanted, engine,
                   &Engine::readClubs);
  QObject::connect(window, &MainWindow::visibilityChanged, engine,
                   &Engine::setVisible);
  QObject::connect(engine, &Engine::stateChanged, window,
                   [window, engine] { window->showState(engine->state()); });
  QObject::connect(engine, &Engine::clubPreviewed, window,
                   &MainWindow::showPreview);
  QObject::connect(engine, &Engine::reported, window, &MainWindow::showMessage);
}

void Open(MainWindow *window, Engine *engine) {
  Connect(window, engine);
  engine->readRows();
  QObject::connect(window, &MainWindow::painted, engine, &Engine::start,
                   static_cast<Qt::ConnectionType>(Qt::QueuedConnection |
                                                   Qt::SingleShotConnection));
  window->show();
}

}  // namespace ztk::window
