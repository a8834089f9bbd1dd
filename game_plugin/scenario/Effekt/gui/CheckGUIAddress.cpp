#include "game_plugin/scenario/Log.h"
#include "game_plugin/scenario/program/ParameterReader.h"
#include "game_plugin/scenario/shared/gui/GuiParameters.h"
#include "game_plugin/scenario/tick/ScenarioHandler.h"

#include "em5/gui/EmergencyGui.h"

#include <Rocket/Core/ElementDocument.h>

#include <boost/lexical_cast.hpp>

namespace script {

struct CheckGUIAddressEffect : DefaultEffect {
  static constexpr std::string_view ODDITIES[] = {
      "The document's name is read as the number of an address; a text that is no number ends the script's tick.",
      "Of the first two answers the wrong one is given: 0 is called valid, any other number isn't. The last line tells "
      "how it is: the document's RML, or that there is none.",
  };

  Argument address;
};

static void read(CheckGUIAddressEffect& effect, ParameterReader& in) {
  effect.address = in.raw(1, "GUIDOC_MainMenuWindow", "DocumentName", EXISTING_DOCUMENT_TEXT);
  in.unused(2, "My_String_Id", "id_of_my_element", EXISTING_DOCUMENT_TEXT);
}

static void run(const CheckGUIAddressEffect& effect, ScenarioHandler&) {
  const auto address = boost::lexical_cast<std::uint64_t>(effect.address.text());
  const qsf::UniqueInstance<em5::EmergencyGui> gui;
  if (!gui) return;
  logInfo("adress is " + std::to_string(address));
  logInfo(address == 0 ? "ADDRESS IS  A VALID GUI DOC" : "ADDRESS IS NOT A GUI DOC");
  // The number is compared with what lives and never followed.
  const qsf::GuiDocument* document = gui->getGuiContext().findDocumentByAddress(address);
  const Rocket::Core::ElementDocument* elements = document ? document->getElementDocument() : nullptr;
  logInfo(elements ? elements->GetInnerRML() : "ADDRESS IS NOT A GUI DOC!!!");
}

EFFECT(CheckGUIAddress, "GUI", "")

}
