#include "defaultxml.h"

namespace DefaultXmlText {

// A line has no "id" property.
const char line[] = R"xml(<widget class="VoCc::Line" name="line">
</widget>
)xml";

const char pane[] = R"xml(<widget class="VoCc::Pane" name="pane">
 <property name="geometry">
  <rect>
   <x>0</x>
   <y>0</y>
   <width>150</width>
   <height>100</height>
  </rect>
 </property>
 <property name="title">
  <string>untitled</string>
 </property>
 <property name="id" stdset="0">
  <number></number>
 </property>
</widget>
)xml";

const char matrixPopButtons[] =
        R"xml(<widget class="VoCc::MatrixPopButtons" name="matrixPopButtons">
 <property name="id" stdset="0">
  <number></number>
 </property>
 <property name="textList">
  <stringlist>
   <string>item0</string>
   <string>item1</string>
   <string>item2</string>
   <string>item3</string>
  </stringlist>
 </property>
</widget>
)xml";

// The entries' data is not translated, their texts are.
const char optionCheckBox[] = R"xml(<widget class="VoCc::OptionCheckBox" name="OptionCheckBox">
 <property name="id" stdset="0">
  <number></number>
 </property>
 <item>
  <property name="data">
   <string notr="true">1</string>
  </property>
  <property name="text">
   <string notr="false">Yes</string>
  </property>
 </item>
 <item>
  <property name="data">
   <string notr="true">0</string>
  </property>
  <property name="text">
   <string notr="false">No</string>
  </property>
 </item>
</widget>
)xml";

// A whole document, so that Designer learns the method by which pages are added.
const char drawbackBoxGroup[] =
        "<ui language=\"c++\">\n"
        " <widget class=\"VoCc::DrawbackBoxGroup\" name=\"drawbackBoxGroup\">\n"
        "  <widget class=\"QWidget\" name=\"page\" />\n"
        " </widget>\n"
        " <customwidgets>\n"
        "  <customwidget>\n"
        "   <class>VoCc::DrawbackBoxGroup</class>\n"
        "   <extends>QWidget</extends>\n"
        "   <addpagemethod>addPage</addpagemethod>\n"
        "  </customwidget>\n"
        " </customwidgets>\n"
        "</ui>\n";

// A dockable form around a page group with three titled pages; no "id" property.
const char form[] = R"xml(<widget class="VoCc::Form" name="form">
 <property name="geometry">
  <rect>
   <x>0</x>
   <y>0</y>
   <width>275</width>
   <height>360</height>
  </rect>
 </property>
 <property name="mode">
  <enum>VoCc::Form::Dockable</enum>
 </property>
 <property name="functionName">
  <string notr="true"/>
 </property>
 <layout class="QVBoxLayout" name="verticalLayout">
  <property name="margin">
   <number>2</number>
  </property>
  <item>
   <widget class="VoCc::DrawbackBoxGroup" name="drawbackBoxGroup">
    <property name="currentIndex">
     <number>0</number>
    </property>
    <widget class="QWidget" name="page_0">
     <property name="windowTitle">
      <string>Required</string>
     </property>
    </widget>
    <widget class="QWidget" name="page_1">
     <property name="windowTitle">
      <string>Optional</string>
     </property>
    </widget>
    <widget class="QWidget" name="page_2">
     <property name="windowTitle">
      <string>Advanced</string>
     </property>
    </widget>
   </widget>
  </item>
 </layout>
</widget>
)xml";

} // namespace DefaultXmlText
