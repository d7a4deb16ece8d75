// SPDX-License-Identifier: MIT
// The window "Records": the best times of each level as a map, who holds how many, and a plot. Only looks; what it
// shows follows the game while it is open. Used by the front end.
#pragma once

#include <QLabel>
#include <QListWidget>
#include <QTabBar>
#include <QWidget>

#include "game/session.h"
#include "ui/qt/records_map.h"
#include "ui/qt/records_plot.h"

namespace kestrel {

class RecordsWindow final : public QWidget {
 public:
  // The session must outlive the window.
  explicit RecordsWindow(const Session& session);

  // On the screen and in front of the game's window, with a level's records, 1..5.
  void Open(int level, const QWidget& game);
  // What the game has changed.
  void Sync();
  // After a change of size or colours.
  void ApplyLook();

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void PlaceOver(const QWidget& game);
  void ShowHolders(const LevelRecords& records);
  void Point(int number);

  const Session& session_;
  QTabBar levels_{this};
  RecordsMap map_{this};
  RecordsPlot plot_{this};
  QListWidget holders_{this};
  QLabel holders_title_{this};
  QLabel pointed_{this};
  LevelRecords shown_;
};

}  // namespace kestrel
