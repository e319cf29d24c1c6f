// The self-check's exported switches and its result lines.
#include "selfcheck.h"

#include "dbgdatakey.h"

#include <iostream>

int g_runSerializationTest = 1;
int g_runFullKeyTest = 1;
Vemo::DbgData::ISerializerHelper* g_serHlp = nullptr;
Vemo::DbgData::IDeserializerHelper* g_desHlp = nullptr;

void report_ok(const std::string& className) {
  std::cout << "Test for debugger data class " << className
            << " successfully completed." << std::endl;
}

void report_fullkey_ok(const Vemo::DbgData::DbgDataKey& key) {
  std::cout << "Fullkey test for " << key << " successfully completed."
            << std::endl;
}

void error_serialization(const std::string& className) {
  std::cerr << "Error: Could not serialize debugger data class " << className
            << "." << std::endl;
}

void error_deserialization(const std::string& className) {
  std::cerr << "Error: Could not deserialize debugger data class " << className
            << "." << std::endl;
}

void error_deserialization_listsize(const std::string& className) {
  std::cerr << "Error: Deserialization of children not correct for debugger "
               "data class "
            << className << "." << std::endl;
}

void error_cannot_create(const std::string& className) {
  std::cerr << "Error: Could not create debugger data class " << className
            << "." << std::endl;
}

void error_content_corrupt(const std::string& className) {
  // "corupted" is the message's established spelling.
  std::cerr << "Error: Content of debugger data class " << className
            << " corupted after serialization & deserialization." << std::endl;
}

void error_fullkey(const Vemo::DbgData::DbgDataKey& key) {
  std::cerr << "Error: problem with fullkey creation / parsing of key " << key
            << "." << std::endl;
}
