"""Which tests matter for a file, those that most likely notice a change first."""

READING = (
    "tst_text_lines tst_file_kind tst_number tst_wel_reader tst_bek_reader tst_dkl_reader "
    "tst_name_listing tst_line_text tst_line_blocks tst_row_log tst_single_pass tst_read_errors "
    "tst_unreadable_files tst_out_of_memory tst_random_files"
)
DRAWING = (
    "tst_curves tst_plot_pair tst_axis_scales tst_store tst_lifetimes tst_plot_commands "
    "tst_axis_commands tst_characteristic_curves"
)
PIXELS = "tst_long_curve tst_other_curves tst_long_curve_again"
DIALOGS = "tst_axis_dialog tst_rename_dialog tst_axis_commands tst_rename_command"
WINDOW = (
    "tst_layout tst_file_list tst_plot_commands tst_fixed_ranges tst_characteristic_curves "
    "tst_name_navigation tst_axis_commands tst_rename_command tst_information tst_saved_image "
    "tst_manual_command tst_startup tst_odd_names tst_picture_faults tst_closing "
    "tst_several_instances tst_tab_order tst_keys tst_spoken_names "
    "tst_random_walk"
)
DOCU = (
    "tst_docu_layout tst_docu_navigation tst_docu_search tst_zoom_selector tst_docu_bad_files "
    "tst_docu_keys tst_docu_hostile_files tst_manual_command tst_manual_loader"
)

# The first row with which the path begins holds; the second column comes before the third.
TABLE = [
    ("plot/reading/bek", "tst_bek_reader tst_name_listing", READING),
    ("plot/reading/dkl_lines", "tst_name_listing tst_dkl_reader", READING),
    ("plot/reading/dkl", "tst_dkl_reader", READING),
    ("plot/reading/name_listing", "tst_name_listing", READING),
    ("plot/reading/number", "tst_number", READING),
    ("plot/reading/plain_decimal", "tst_line_text tst_number", READING),
    ("plot/reading/text_lines", "tst_text_lines tst_line_blocks", READING),
    ("plot/reading/tokens", "tst_line_text tst_number", READING),
    ("plot/reading/row_log", "tst_row_log", READING),
    ("plot/reading/line_text", "tst_line_text tst_bek_reader tst_name_listing", READING),
    ("plot/reading/debug_log", "tst_row_log tst_out_of_memory", READING),
    ("plot/reading/file_kind", "tst_file_kind", READING),
    ("plot/reading/result_file", "tst_store tst_wel_reader", READING),
    ("plot/reading/", "tst_wel_reader", READING),
    ("plot/drawing/curve_table", "tst_curves", DRAWING),
    ("plot/drawing/pixel_rows", "tst_pixel_rows tst_pixel_rows_memory " + PIXELS, DRAWING),
    ("plot/drawing/row_window", "tst_pixel_rows " + PIXELS, DRAWING),
    ("plot/drawing/value_blocks", "tst_sampled_line " + PIXELS, DRAWING),
    ("plot/drawing/sampled_line", "tst_sampled_line " + PIXELS, DRAWING),
    ("plot/drawing/pixel_map", "tst_sampled_line " + PIXELS, DRAWING),
    ("plot/drawing/owned_item", "tst_lifetimes", DRAWING),
    ("plot/drawing/", PIXELS, DRAWING),
    ("plot/korimo_plot_reading", "tst_store tst_wel_reader tst_out_of_memory", READING),
    ("plot/korimo_plot_axes", "tst_axis_scales", DRAWING),
    ("plot/korimo_plot_finish", "tst_plot_pair", DRAWING),
    ("plot/shown_text", "tst_odd_names", DRAWING),
    ("plot/", "tst_curves", DRAWING + " " + READING),
    ("ui/axis_dialog", "tst_axis_dialog", DIALOGS),
    ("ui/rename_dialog", "tst_rename_dialog", DIALOGS),
    ("ui/name_table", "tst_dialog_keys", DIALOGS),
    ("ui/mainwindow_accessibility", "tst_tab_order tst_spoken_names tst_keys", WINDOW),
    ("ui/mainwindow_axes", "tst_axis_commands", WINDOW),
    ("ui/mainwindow_characteristic", "tst_characteristic_curves tst_name_navigation", WINDOW),
    ("ui/mainwindow_files", "tst_file_list", WINDOW),
    ("ui/choose_files", "tst_file_list", WINDOW),
    ("ui/mainwindow_image", "tst_saved_image", WINDOW),
    ("ui/image_file_name", "tst_saved_image", WINDOW),
    ("ui/mainwindow_information", "tst_information", WINDOW),
    ("ui/mainwindow_manual", "tst_manual_command", WINDOW),
    ("ui/mainwindow_plots", "tst_plot_commands tst_fixed_ranges", WINDOW),
    ("ui/mainwindow_rename", "tst_rename_command", WINDOW),
    ("ui/name_delegate", "tst_rename_dialog tst_odd_names", WINDOW),
    ("ui/application_icon", "tst_startup tst_information", WINDOW),
    ("ui/", "tst_layout", WINDOW),
    ("docu/docudialog_accessibility", "tst_docu_keys", DOCU),
    ("docu/manual_module", "tst_manual_loader", ""),
    ("docu/zoomselector", "tst_zoom_selector", DOCU),
    ("docu/", "", DOCU),
]


def tests_of(path: str) -> list[str]:
    for pattern, first, others in TABLE:
        if path.startswith(pattern):
            return list(dict.fromkeys((first + " " + others).split()))
    raise KeyError(path)


# Folders whose tests must be stronger than the average: what reads the files, and the tables.
STRICT = [
    "plot/reading/",
    "plot/drawing/curve_table",
    "plot/korimo_plot_reading",
    "ui/mainwindow_axes",
]


def group_of(path: str) -> str:
    return "readers and tables" if path.startswith(tuple(STRICT)) else path.split("/")[0]
