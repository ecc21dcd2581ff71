# SPDX-License-Identifier: MIT
# The layers of the house, from the ground up. A layer is a static library; its files see those of the layers that it
# stands on and no others, which the test "Layers" checks include by include.
#
# tidewalk_layer(NAME [ON LAYER...] FILES STEM...): a stem stands for its .h and its .cpp, whichever there are.

function(tidewalk_layer name)
    cmake_parse_arguments(PARSE_ARGV 1 layer "" "" "ON;FILES")
    set(files "")
    foreach(stem IN LISTS layer_FILES)
        if(NOT EXISTS ${CMAKE_SOURCE_DIR}/${stem}.h AND NOT EXISTS ${CMAKE_SOURCE_DIR}/${stem}.cpp)
            message(FATAL_ERROR "The layer ${name} names ${stem}, which is not there")
        endif()
        foreach(file IN ITEMS ${stem}.h ${stem}.cpp)
            if(EXISTS ${CMAKE_SOURCE_DIR}/${file})
                list(APPEND files ${file})
            endif()
        endforeach()
    endforeach()
    list(TRANSFORM files PREPEND ${CMAKE_SOURCE_DIR}/ OUTPUT_VARIABLE sources)
    add_library(tidewalk_${name} STATIC ${sources})
    set_target_properties(tidewalk_${name} PROPERTIES LINKER_LANGUAGE CXX)
    target_include_directories(tidewalk_${name} PUBLIC ${CMAKE_SOURCE_DIR})
    list(TRANSFORM layer_ON PREPEND tidewalk_ OUTPUT_VARIABLE below)
    target_link_libraries(tidewalk_${name} PUBLIC tidewalk_build ${below})
    file(WRITE ${CMAKE_BINARY_DIR}/layers/${name}.cmake "set(layers_below ${layer_ON})\nset(layer_files ${files})\n")
endfunction()

file(REMOVE_RECURSE ${CMAKE_BINARY_DIR}/layers)

# The engine: values and functions that know no window, no shared state and no event. The standard library alone.

tidewalk_layer(model FILES
    model/cell_set model/cell_words model/characters model/check model/collection_file model/convert_layout
    model/file_error model/grid model/grid_reader model/grid_tally model/line_index model/line_reader model/link
    model/may_go_on model/numbers model/paths model/plain_grid model/puzzle model/puzzle_range model/puzzle_record
    model/put_aside model/random_source model/replace_file model/system_file)

tidewalk_layer(solver ON model FILES
    solver/archipelago solver/balance solver/bound_trail solver/clauses solver/connect_islands solver/contradictions
    solver/count_solutions solver/difficulty solver/laid_bridges solver/link_table solver/literal solver/neighbours
    solver/rules solver/solution_search solver/solve_puzzle solver/solver_board solver/span_queue solver/status_list
    solver/trial_search solver/valid_solution)

tidewalk_layer(techniques ON solver FILES
    techniques/counting techniques/cutting_off techniques/deducer techniques/deduction techniques/explain
    techniques/grade techniques/groups techniques/hint techniques/named_rule techniques/position
    techniques/puzzle_filter techniques/sentences techniques/supposing)

tidewalk_layer(generator ON techniques FILES
    generator/add_islands generator/character generator/character_choices generator/create_puzzle
    generator/fit_figures generator/grid_size generator/grow generator/ordered_layout generator/puzzle_order
    generator/refine generator/shuffle_lines generator/solved_layout)

# The picture of a puzzle on any surface, and the board with what the player has done on it: on values, too.

tidewalk_layer(drawing ON model FILES
    drawing/contrast drawing/double_line drawing/printed_board drawing/puzzle_svg drawing/render_puzzle drawing/sheet
    drawing/surface drawing/svg_surface)

tidewalk_layer(booklet ON drawing techniques FILES
    booklet/booklet booklet/booklet_contents booklet/booklet_design booklet/front_pages booklet/page_layout
    booklet/print_text)

tidewalk_layer(board ON drawing FILES
    board/board board/bridge_table board/check_bridges board/draw_marks board/drawing board/guide board/history
    board/history_lines board/kept_play_text board/layout board/mistakes board/pair_marks board/place_bridge
    options/options)

# The game: what the window's handlers share, and the seams to the world.

tidewalk_layer(game ON board booklet generator FILES
    game/background game/choices game/clock game/file_work game/game game/guidance game/job game/job_state
    game/list_box game/main_window game/messages game/order_choices game/output game/pick_file game/play_store
    game/play_time game/questions game/recent_files)

# The handlers of menus, buttons, mouse and keys, each beside its subject.

tidewalk_layer(commands ON game FILES
    board/after_move board/board_commands board/board_keys board/board_mouse board/copy_and_print board/keep_play
    board/magnify board/print_document board/print_pages board/show_board
    booklet/booklet_choices booklet/print_booklet
    generator/batch generator/new_puzzle generator/shuffle
    model/collection_commands model/configuration model/import_grid model/load_puzzle model/navigation
    model/number_grid
    options/colour_scheme options/options_form options/scheme_file options/window_colours
    solver/auto_solve solver/show_solutions
    techniques/assess_board techniques/explain_board techniques/give_hint techniques/show_guide)

# The start and the end of a run.

tidewalk_layer(program ON commands FILES
    program/escape program/exit program/first_collection program/form_load)
