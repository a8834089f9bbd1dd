#include "game_plugin/gui/AudioTrackerGUI.h"

#include "game_plugin/scenario/Log.h"

#include "Rocket/Core.h"
#include "em5/base/Jobs.h"
#include "qsf/Qsf.h"
#include "qsf/audio/AudioSystem.h"
#include "qsf/map/ComponentMapQuery.h"
#include "qsf/map/Map.h"

namespace script {

AudioTrackerGUI::AudioTrackerGUI(qsf::GuiContext& context) : GuiDocument(context) {
  loadByFilename(FILE_NAME);
  setVisible(true);
  mJobProxy.registerAt(em5::Jobs::SIMULATION_LOGIC, [this](const qsf::JobArguments&) { update(); });
}

AudioTrackerGUI::~AudioTrackerGUI() {
  logInfo("destroy tracker");
  mJobProxy.unregister();
  hide();
  unload();
}

void AudioTrackerGUI::update() {
  const qsf::AudioManager::Statistics statistics =
      qsf::Qsf::instance()->getAudioSystem().getAudioManager().getStatistics();
  write("text_left", statistics.buffers);
  write("text_right", statistics.playing);
  write("text_up", statistics.looped);
  write("text_down",
        qsf::ComponentMapQuery(qsf::getMainMap()).getAllInstancesById(qsf::StringHash("qsf::AudioComponent")).size());
}

void AudioTrackerGUI::write(const char* elementId, std::size_t number) {
  if (Rocket::Core::Element* element = findElementById(elementId)) element->SetInnerRML(std::to_string(number));
}

void AudioTrackerGUI::processEvent(const std::string& name, Rocket::Core::Event& /*event*/) {
  if (name == "onClose") hide();
}

void AudioTrackerGUI::ProcessEvent(Rocket::Core::Event& event) {
  const Rocket::Core::Element* target = event.GetTargetElement();
  if (target) logInfo("Button wurde gedrueckt: " + target->GetId());
}

}
