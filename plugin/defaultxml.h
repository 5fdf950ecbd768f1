#pragma once

// The default XML texts that differ from the standard element with an "id" property.
namespace DefaultXmlText {
extern const char line[];
extern const char pane[];
extern const char matrixPopButtons[];
extern const char optionCheckBox[];
extern const char drawbackBoxGroup[];
extern const char form[];
} // namespace DefaultXmlText
