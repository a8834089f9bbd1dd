#pragma once
#include "apps/tidemark/test/TestSession.h"

#include "qsf/editor/Application.h"

namespace tidemark::test {

/// The editor that the test runs in. Throws NotThere in a test of the game.
inline qsf::editor::Application& requireEditor() {
  const qsf::UniqueInstance<qsf::editor::Application> editor;
  if (!editor) throw NotThere("there is no editor; a test of the editor has @editor");
  return *editor;
}

}
