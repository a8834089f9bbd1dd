#pragma once
#include "Rocket/Core/Dictionary.h"
#include "Rocket/Core/Element.h"
#include "Rocket/Core/ElementDocument.h"
#include "Rocket/Core/Event.h"
#include "Rocket/Core/EventListener.h"
#include "Rocket/Core/String.h"
