#pragma once
#include "game_plugin/scenario/world/GuiDocuments.h"

#include "Rocket/Core/EventListener.h"
#include "qsf/gui/GuiDocument.h"
#include "qsf/job/JobProxy.h"

namespace script {

/// A small window that tells what the sound system does, anew in each frame of simulation. Visible from its making.
/// Owned by GuiInstanceManager.
class AudioTrackerGUI : public qsf::GuiDocument, public Rocket::Core::EventListener {
public:
  static constexpr const char* FILE_NAME = "em5/gui/ingamehud/audiotracker.rml";

  explicit AudioTrackerGUI(qsf::GuiContext& context);
  ~AudioTrackerGUI() override;

  void processEvent(const std::string& name, Rocket::Core::Event& event) override;
  void ProcessEvent(Rocket::Core::Event& event) override;

private:
  void update();
  void write(const char* elementId, std::size_t number);

  NamedDocument mName{"audiotracker", *this};
  qsf::JobProxy mJobProxy;
};

}
