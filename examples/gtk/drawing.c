/* A small drawing application in which every widget has a page id. */
#include "help.h"

typedef struct {
  cairo_surface_t* picture;
  GtkSpinButton* width;
  double from[2], last[2];
} Canvas;

static void draw(GtkDrawingArea* area, cairo_t* cairo, int width, int height,
                 gpointer data) {
  (void)area;
  (void)width;
  (void)height;
  cairo_set_source_surface(cairo, ((Canvas*)data)->picture, 0, 0);
  cairo_paint(cairo);
}

static void on_begin(GtkGestureDrag* drag, double x, double y, Canvas* canvas) {
  gtk_widget_grab_focus(
      gtk_event_controller_get_widget(GTK_EVENT_CONTROLLER(drag)));
  canvas->from[0] = canvas->last[0] = x;
  canvas->from[1] = canvas->last[1] = y;
}

static void on_drag(GtkGestureDrag* drag, double dx, double dy,
                    Canvas* canvas) {
  cairo_t* cairo = cairo_create(canvas->picture);
  cairo_set_line_width(cairo, gtk_spin_button_get_value(canvas->width));
  cairo_move_to(cairo, canvas->last[0], canvas->last[1]);
  canvas->last[0] = canvas->from[0] + dx;
  canvas->last[1] = canvas->from[1] + dy;
  cairo_line_to(cairo, canvas->last[0], canvas->last[1]);
  cairo_stroke(cairo);
  cairo_destroy(cairo);
  gtk_widget_queue_draw(
      gtk_event_controller_get_widget(GTK_EVENT_CONTROLLER(drag)));
}

static GtkWidget* new_canvas(Canvas* canvas) {
  canvas->picture = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, 640, 400);
  GtkWidget* area = gtk_drawing_area_new();
  gtk_widget_set_size_request(area, 640, 400);
  gtk_widget_set_focusable(area, TRUE);
  gtk_drawing_area_set_draw_func(GTK_DRAWING_AREA(area), draw, canvas, NULL);
  GtkGesture* drag = gtk_gesture_drag_new();
  g_signal_connect(drag, "drag-begin", G_CALLBACK(on_begin), canvas);
  g_signal_connect(drag, "drag-update", G_CALLBACK(on_drag), canvas);
  gtk_widget_add_controller(area, GTK_EVENT_CONTROLLER(drag));
  return with_page_id(area, "drawing-lines");
}

/* The pen has a page. Its entry for the width has one, its switch has not. */
static GtkWidget* new_pen(Canvas* canvas) {
  GtkWidget* pen = gtk_box_new(GTK_ORIENTATION_HORIZONTAL, 6);
  GtkWidget* width = gtk_spin_button_new_with_range(1, 20, 1);
  canvas->width = GTK_SPIN_BUTTON(width);
  gtk_box_append(GTK_BOX(pen), with_page_id(width, "drawing-width"));
  GtkWidget* round = gtk_check_button_new_with_label("Round");
  gtk_box_append(GTK_BOX(pen), with_page_id(round, "drawing-round"));
  return with_page_id(pen, "drawing-pen");
}

static GtkWidget* new_help_button(void) {
  GtkWidget* button = gtk_button_new_with_label("Help");
  gtk_actionable_set_action_name(GTK_ACTIONABLE(button), "win.help");
  /* It is about the widget that has the focus, so it never takes it. */
  gtk_widget_set_focusable(button, FALSE);
  return button;
}

static void on_activate(GtkApplication* application, gpointer canvas) {
  GtkWidget* window = gtk_application_window_new(application);
  gtk_window_set_title(GTK_WINDOW(window), "Drawing");
  GtkWidget* status = gtk_label_new("");
  GtkWidget* area = new_canvas(canvas);
  GtkWidget* name = with_page_id(gtk_entry_new(), "drawing-name");
  GtkWidget* box = gtk_box_new(GTK_ORIENTATION_VERTICAL, 6);
  GtkWidget* parts[] = {area, new_pen(canvas), name, new_help_button(), status};
  for (size_t i = 0; i < G_N_ELEMENTS(parts); ++i) {
    gtk_box_append(GTK_BOX(box), parts[i]);
  }
  gtk_window_set_child(GTK_WINDOW(window), box);
  add_help(GTK_APPLICATION_WINDOW(window), GTK_LABEL(status));
  gtk_widget_grab_focus(area);
  gtk_window_present(GTK_WINDOW(window));
}

int main(int argc, char* argv[]) {
  static Canvas canvas;
  GtkApplication* application =
      gtk_application_new("com.velmo.Drawing", G_APPLICATION_DEFAULT_FLAGS);
  g_signal_connect(application, "activate", G_CALLBACK(on_activate), &canvas);
  const int status = g_application_run(G_APPLICATION(application), argc, argv);
  g_object_unref(application);
  return status;
}
