# The learner screens (User Manager, Add dialog, home page): widgets built on the pages library.
add_library(learnerscreens STATIC
    ${CMAKE_CURRENT_LIST_DIR}/AddUserDialog.cpp
    ${CMAKE_CURRENT_LIST_DIR}/HomePage.cpp
    ${CMAKE_CURRENT_LIST_DIR}/UserManagerDialog.cpp
    ${CMAKE_SOURCE_DIR}/resources/forms/AddUserDialog.ui
    ${CMAKE_SOURCE_DIR}/resources/forms/HomePage.ui
    ${CMAKE_SOURCE_DIR}/resources/forms/UserManagerDialog.ui
)
add_library(zavoren::learnerscreens ALIAS learnerscreens)
set_target_properties(learnerscreens PROPERTIES AUTOUIC_SEARCH_PATHS ${CMAKE_SOURCE_DIR}/resources/forms)
target_include_directories(learnerscreens PUBLIC ${CMAKE_CURRENT_LIST_DIR})
target_link_libraries(learnerscreens PUBLIC zavoren::learners zavoren::lessons Qt6::Widgets)
target_compile_options(learnerscreens PRIVATE ${ZAVOREN_WARNINGS})
