// Prints the legend of a map document: legend.exe FILE
using System;
using System.Collections.Generic;
using System.Runtime.InteropServices;

static class Library
{
    // vqk_file_mxd.dll on Windows, libvqk_file_mxd.so with Mono.
    const string Name = "vqk_file_mxd";
    const CallingConvention C = CallingConvention.Cdecl;

    [DllImport(Name, CallingConvention = C)]
    public static extern IntPtr vq_mxd_mxd_create();
    [DllImport(Name, CallingConvention = C)]
    public static extern void vq_mxd_mxd_destroy(IntPtr document);
    [DllImport(Name, CallingConvention = C, CharSet = CharSet.Unicode)]
    public static extern int vq_mxd_mxd_load(IntPtr document, string path);
    [DllImport(Name, CallingConvention = C)]
    public static extern IntPtr vq_mxd_mxd_get_maps(IntPtr document);
    [DllImport(Name, CallingConvention = C)]
    public static extern long vq_mxd_maps_get_size(IntPtr maps);
    [DllImport(Name, CallingConvention = C)]
    public static extern IntPtr vq_mxd_maps_get(IntPtr maps, int index);
    [DllImport(Name, CallingConvention = C)]
    public static extern int vq_mxd_obj_get_repeat(IntPtr obj);
    [DllImport(Name, CallingConvention = C)]
    public static extern IntPtr vq_mxd_obj_get_type_str(IntPtr obj);
    [DllImport(Name, CallingConvention = C)]
    public static extern IntPtr vq_mxd_map_get_name(IntPtr map);
    [DllImport(Name, CallingConvention = C)]
    public static extern IntPtr vq_mxd_map_get_layers(IntPtr map);
    [DllImport(Name, CallingConvention = C)]
    public static extern long vq_mxd_layers_get_size(IntPtr layers);
    [DllImport(Name, CallingConvention = C)]
    public static extern IntPtr vq_mxd_layers_get(IntPtr layers, int index);
    [DllImport(Name, CallingConvention = C)]
    public static extern IntPtr vq_mxd_layer_get_layer_name(IntPtr layer);
    [DllImport(Name, CallingConvention = C)]
    public static extern IntPtr vq_mxd_layer_cast_feature_layer(IntPtr layer);
    [DllImport(Name, CallingConvention = C)]
    public static extern IntPtr vq_mxd_feature_layer_get_renderer(IntPtr layer);
    [DllImport(Name, CallingConvention = C)]
    public static extern IntPtr vq_mxd_renderer_cast_simple_renderer(IntPtr renderer);
    [DllImport(Name, CallingConvention = C)]
    public static extern IntPtr vq_mxd_renderer_cast_unique_value_renderer(IntPtr renderer);
    [DllImport(Name, CallingConvention = C)]
    public static extern IntPtr vq_mxd_renderer_cast_class_breaks_renderer(IntPtr renderer);
    [DllImport(Name, CallingConvention = C)]
    public static extern IntPtr vq_mxd_simple_renderer_get_legend_group(IntPtr renderer);
    [DllImport(Name, CallingConvention = C)]
    public static extern IntPtr vq_mxd_unique_value_renderer_get_main_leg_grp(IntPtr renderer);
    [DllImport(Name, CallingConvention = C)]
    public static extern IntPtr vq_mxd_unique_value_renderer_get_other_leg_grp(IntPtr renderer);
    [DllImport(Name, CallingConvention = C)]
    public static extern IntPtr vq_mxd_class_breaks_renderer_get_main_leg_grp(IntPtr renderer);
    [DllImport(Name, CallingConvention = C)]
    public static extern long vq_mxd_legend_group_get_size(IntPtr group);
    [DllImport(Name, CallingConvention = C)]
    public static extern IntPtr vq_mxd_legend_group_get(IntPtr group, int index);
    [DllImport(Name, CallingConvention = C)]
    public static extern IntPtr vq_mxd_legend_class_get_label(IntPtr legendClass);
    [DllImport(Name, CallingConvention = C)]
    public static extern IntPtr vq_mxd_legend_class_get_symbol(IntPtr legendClass);
    [DllImport(Name, CallingConvention = C)]
    public static extern IntPtr vq_mxd_symbol_cast_simple_fill(IntPtr symbol);
    [DllImport(Name, CallingConvention = C)]
    public static extern IntPtr vq_mxd_simple_fill_symbol_get_color(IntPtr symbol);
    [DllImport(Name, CallingConvention = C)]
    public static extern int vq_mxd_color_get_rgb(IntPtr color, out byte red, out byte green, out byte blue);
}

static class Legend
{
    static string Text(IntPtr utf16)
    {
        return Marshal.PtrToStringUni(utf16);
    }

    static IEnumerable<IntPtr> Items(IntPtr list, Func<IntPtr, long> size, Func<IntPtr, int, IntPtr> get)
    {
        for (int i = 0; i < size(list); ++i) yield return get(list, i);
    }

    static string Describe(IntPtr symbol)
    {
        if (symbol == IntPtr.Zero) return "no symbol";
        string type = Marshal.PtrToStringAnsi(Library.vq_mxd_obj_get_type_str(symbol));
        IntPtr fill = Library.vq_mxd_symbol_cast_simple_fill(symbol);
        IntPtr color = fill == IntPtr.Zero ? fill : Library.vq_mxd_simple_fill_symbol_get_color(fill);
        if (color == IntPtr.Zero) return type;
        byte r, g, b;
        Library.vq_mxd_color_get_rgb(color, out r, out g, out b);
        return string.Format("{0} #{1:x2}{2:x2}{3:x2}", type, r, g, b);
    }

    static IEnumerable<IntPtr> Groups(IntPtr renderer)
    {
        IntPtr simple = Library.vq_mxd_renderer_cast_simple_renderer(renderer);
        IntPtr unique = Library.vq_mxd_renderer_cast_unique_value_renderer(renderer);
        IntPtr breaks = Library.vq_mxd_renderer_cast_class_breaks_renderer(renderer);
        if (simple != IntPtr.Zero) yield return Library.vq_mxd_simple_renderer_get_legend_group(simple);
        if (unique != IntPtr.Zero) yield return Library.vq_mxd_unique_value_renderer_get_main_leg_grp(unique);
        if (unique != IntPtr.Zero) yield return Library.vq_mxd_unique_value_renderer_get_other_leg_grp(unique);
        if (breaks != IntPtr.Zero) yield return Library.vq_mxd_class_breaks_renderer_get_main_leg_grp(breaks);
    }

    static void PrintMap(IntPtr map)
    {
        Console.WriteLine("  " + Text(Library.vq_mxd_map_get_name(map)));
        foreach (IntPtr layer in Items(Library.vq_mxd_map_get_layers(map), Library.vq_mxd_layers_get_size,
                                       Library.vq_mxd_layers_get))
        {
            Console.WriteLine("    " + Text(Library.vq_mxd_layer_get_layer_name(layer)));
            IntPtr feature = Library.vq_mxd_layer_cast_feature_layer(layer);
            if (feature == IntPtr.Zero) continue;
            foreach (IntPtr group in Groups(Library.vq_mxd_feature_layer_get_renderer(feature)))
            {
                foreach (IntPtr item in Items(group, Library.vq_mxd_legend_group_get_size,
                                              Library.vq_mxd_legend_group_get))
                {
                    string label = Text(Library.vq_mxd_legend_class_get_label(item));
                    Console.WriteLine("      {0}: {1}", label, Describe(Library.vq_mxd_legend_class_get_symbol(item)));
                }
            }
        }
    }

    static int Main(string[] arguments)
    {
        if (arguments.Length != 1)
        {
            Console.Error.WriteLine("usage: legend FILE");
            return 2;
        }
        IntPtr document = Library.vq_mxd_mxd_create();
        if (Library.vq_mxd_mxd_load(document, arguments[0]) == 0)
        {
            Console.Error.WriteLine(arguments[0] + ": not readable as a map document");
            return 1;
        }
        Console.WriteLine(arguments[0]);
        foreach (IntPtr map in Items(Library.vq_mxd_mxd_get_maps(document), Library.vq_mxd_maps_get_size,
                                     Library.vq_mxd_maps_get))
        {
            if (Library.vq_mxd_obj_get_repeat(map) == 0) PrintMap(map);
        }
        Library.vq_mxd_mxd_destroy(document);
        return 0;
    }
}
